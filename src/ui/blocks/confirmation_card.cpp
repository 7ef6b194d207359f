#include "ui/blocks/confirmation_card.h"

#include "ui/blocks/sb_button.h"
#include "ui/blocks/text.h"
#include "ui/look/measures.h"
#include "ui/look/tokens.h"

#include <QVBoxLayout>

namespace velmora {

ConfirmationCard::ConfirmationCard(const Words& words, QWidget* window)
    : OverlayCard(Measure::confirmationCard, window),
      body_(new Text(words.body, Type::confirmationBody, SB::body, card())),
      keep_(new SBButton(words.keep, {.kind = SBButtonKind::secondary}, card())) {
    setAccessibleName(words.title);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(Measure::gap12);
    buttons->addStretch(1);
    buttons->addWidget(keep_);
    if (!words.act.isEmpty())
        addAct(words.act, buttons);

    column()->setContentsMargins(Measure::confirmationMargins);
    column()->addWidget(new Text(words.title, Type::confirmationTitle, SB::ink, card()));
    column()->addSpacing(Measure::gap8);
    column()->addWidget(body_);
    column()->addSpacing(Measure::gap24);
    column()->addLayout(buttons);

    connect(keep_, &SBButton::clicked, this, &OverlayCard::close);
    connect(this, &OverlayCard::dismissed, this, &OverlayCard::close);
}

void ConfirmationCard::addAct(const QString& text, QHBoxLayout* buttons) {
    auto* act = new SBButton(text, {.kind = SBButtonKind::danger}, card());
    buttons->addWidget(act);
    connect(act, &SBButton::clicked, this, [this] {
        if (!isOpen())
            return;
        close();
        emit confirmed();
    });
}

void ConfirmationCard::setBody(const QString& body) {
    body_->setText(body);
}

/// Its ring is shown whatever opened the card: what Enter would do must be plain to see.
void ConfirmationCard::focusFirst() {
    keep_->setFocus(Qt::TabFocusReason);
}

} // namespace velmora

#include "ui/blocks/confirmation_card.h"

#include "ui/blocks/sb_button.h"
#include "ui/blocks/text.h"
#include "ui/look/measures.h"
#include "ui/look/tokens.h"

#include <QVBoxLayout>

namespace velmora {

ConfirmationCard::ConfirmationCard(const Texts& texts, QWidget* window)
    : OverlayCard(Measure::confirmationCard, window),
      body_(new Text(texts.body, Type::confirmationBody, SB::body, card())),
      keep_(new SBButton(texts.keep, {.kind = SBButtonKind::secondary}, card())) {
    setAccessibleName(texts.title);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(Measure::gap12);
    buttons->addStretch(1);
    buttons->addWidget(keep_);
    if (!texts.confirm.isEmpty())
        addConfirmButton(texts.confirm, buttons);

    column()->setContentsMargins(Measure::confirmationMargins);
    column()->addWidget(new Text(texts.title, Type::confirmationTitle, SB::ink, card()));
    column()->addSpacing(Measure::gap8);
    column()->addWidget(body_);
    column()->addSpacing(Measure::gap24);
    column()->addLayout(buttons);

    connect(keep_, &SBButton::clicked, this, &OverlayCard::close);
    connect(this, &OverlayCard::dismissed, this, &OverlayCard::close);
}

void ConfirmationCard::addConfirmButton(const QString& text, QHBoxLayout* buttons) {
    auto* confirm = new SBButton(text, {.kind = SBButtonKind::danger}, card());
    buttons->addWidget(confirm);
    connect(confirm, &SBButton::clicked, this, [this] {
        if (!isOpen())
            return;
        close();
        emit confirmed();
    });
}

void ConfirmationCard::setBody(const QString& body) {
    body_->setText(body);
}

/// Shows the focus ring even if the mouse opened the card, so that the owner sees what Enter would do.
void ConfirmationCard::focusFirst() {
    keep_->setFocus(Qt::TabFocusReason);
}

} // namespace velmora

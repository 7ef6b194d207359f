#include "ui/blocks/confirmation_card.h"

#include "ui/blocks/sb_button.h"
#include "ui/blocks/text.h"
#include "ui/look/measures.h"
#include "ui/look/tokens.h"

#include <QVBoxLayout>

namespace velmora {

ConfirmationCard::ConfirmationCard(const Texts& texts, QWidget* window, const Form& form)
    : OverlayCard(form.width, window),
      words_(new QVBoxLayout),
      body_(new Text(texts.body, Type::confirmationBody, SB::body, card())),
      keep_(new SBButton(texts.keep, {.kind = SBButtonKind::secondary, .wide = form.wideButtons}, card())) {
    setAccessibleName(texts.title);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(form.betweenButtons);
    if (!form.wideButtons)
        buttons->addStretch(1);
    buttons->addWidget(keep_);
    if (!texts.confirm.isEmpty())
        addConfirmButton(texts.confirm, form.wideButtons, buttons);

    words_->setSpacing(0);
    words_->addWidget(new Text(texts.title, Type::confirmationTitle, SB::ink, card()));
    words_->addSpacing(Measure::gap8);
    words_->addWidget(body_);
    column()->setContentsMargins(form.margins);
    column()->addLayout(words_);
    column()->addSpacing(form.aboveButtons);
    column()->addLayout(buttons);

    connect(keep_, &SBButton::clicked, this, &OverlayCard::close);
    connect(this, &OverlayCard::dismissed, this, &OverlayCard::close);
}

void ConfirmationCard::addConfirmButton(const QString& text, bool wide, QHBoxLayout* buttons) {
    auto* confirm = new SBButton(text, {.kind = SBButtonKind::danger, .wide = wide}, card());
    buttons->addWidget(confirm);
    connect(confirm, &SBButton::clicked, this, [this] {
        if (!isOpen())
            return;
        close();
        emit confirmed();
    });
}

void ConfirmationCard::addBelowBody(QWidget* content) {
    words_->addWidget(content);
}

void ConfirmationCard::setBody(const QString& body) {
    body_->setText(body);
}

/// Shows the focus ring even if the mouse opened the card, so that the owner sees what Enter would do.
void ConfirmationCard::focusFirst() {
    keep_->setFocus(Qt::TabFocusReason);
}

} // namespace velmora

#pragma once

#include "ui/blocks/overlay_card.h"
#include "ui/look/measures.h"

class QHBoxLayout;

namespace velmora {

class SBButton;
class Text;

/// Asks for confirmation of an action that cannot be undone. Dismissing the card changes nothing.
class ConfirmationCard : public OverlayCard {
    Q_OBJECT

public:
    struct Texts {
        QString title;
        QString body;
        QString keep;    ///< the button that changes nothing
        QString confirm; ///< the button that carries out the action; empty for a card that only informs
    };

    /// The card's measures in pixels.
    struct Form {
        int width = Measure::confirmationCard;
        QMargins margins = Measure::confirmationMargins;
        int aboveButtons = Measure::gap24;
        int betweenButtons = Measure::gap12;
        bool wideButtons = false; ///< they fill the card's width
    };

    ConfirmationCard(const Texts& texts, QWidget* window, const Form& form);
    ConfirmationCard(const Texts& texts, QWidget* window) : ConfirmationCard(texts, window, Form()) {}

    void setBody(const QString& body);

signals:
    void confirmed();

protected:
    void focusFirst() override;
    /// Adds content between the body and the buttons.
    void addBelowBody(QWidget* content);

private:
    void addConfirmButton(const QString& text, bool wide, QHBoxLayout* buttons);

    QVBoxLayout* words_; ///< title, body and what a subclass adds
    Text* body_;
    SBButton* keep_;
};

} // namespace velmora

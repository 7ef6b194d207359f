#pragma once

#include "ui/blocks/overlay_card.h"

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

    ConfirmationCard(const Texts& texts, QWidget* window);

    void setBody(const QString& body);

signals:
    void confirmed();

protected:
    void focusFirst() override;

private:
    void addConfirmButton(const QString& text, QHBoxLayout* buttons);

    Text* body_;
    SBButton* keep_;
};

} // namespace velmora

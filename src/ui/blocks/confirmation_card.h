#pragma once

#include "ui/blocks/overlay_card.h"

class QHBoxLayout;

namespace velmora {

class SBButton;
class Text;

/// Asks before something that cannot be taken back. Dismissing it changes nothing.
class ConfirmationCard : public OverlayCard {
    Q_OBJECT

public:
    struct Words {
        QString title;
        QString body;
        QString keep; ///< the button that changes nothing
        QString act;  ///< the button that does it; without one the card only tells
    };

    ConfirmationCard(const Words& words, QWidget* window);

    void setBody(const QString& body);

signals:
    void confirmed();

protected:
    void focusFirst() override;

private:
    void addAct(const QString& text, QHBoxLayout* buttons);

    Text* body_;
    SBButton* keep_;
};

} // namespace velmora

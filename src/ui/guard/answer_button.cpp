#include "ui/guard/answer_button.h"

#include <QMouseEvent>

#include <utility>

namespace velmora {

AnswerButton::AnswerButton(Command answer, CommandSource source, AnswerGuard& guard, const QString& text,
                           const SBButtonStyle& style, QWidget* parent)
    : SBButton(text, style, parent), guard_(guard) {
    connect(&guard_, &AnswerGuard::changed, this, &AnswerButton::followGuard);
    connect(this, &SBButton::pressed, this, [this] {
        if (!byMouse_) // dragging the mouse back onto the button does not begin a press
            press_ = guard_.admit();
    });
    connect(this, &SBButton::clicked, this,
            [this, answer, source] { guard_.answer(answer, std::exchange(press_, std::nullopt), source); });
    followGuard();
}

void AnswerButton::followGuard() {
    setPale(!guard_.isOpen());
    if (guard_.isOpen())
        return;
    press_.reset();
    setDown(false);
}

bool AnswerButton::event(QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        byMouse_ = true;
        press_ = guard_.admit(UiClock::current().stampOf(*static_cast<QMouseEvent*>(event)));
        return press_ ? SBButton::event(event) : true;
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease: {
        const bool handled = press_ ? SBButton::event(event) : true;
        byMouse_ = byMouse_ && event->type() == QEvent::MouseMove;
        return handled;
    }
    case QEvent::Hide: // another widget gets the release
        byMouse_ = false;
        press_.reset();
        return SBButton::event(event);
    default:
        return SBButton::event(event);
    }
}

} // namespace velmora

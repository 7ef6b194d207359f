#include "ui/blocks/enter_presses.h"

#include <QAbstractButton>
#include <QKeyEvent>

namespace velmora {

namespace {

class EnterPresses : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::KeyPress)
            return false;
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter)
            return false;
        static_cast<QAbstractButton*>(watched)->click();
        return true;
    }
};

} // namespace

void letEnterPress(QAbstractButton* button) {
    button->installEventFilter(new EnterPresses(button));
}

} // namespace velmora

#include "ui/blocks/click_on_enter.h"

#include <QAbstractButton>
#include <QKeyEvent>

namespace velmora {

namespace {

class ClickOnEnter : public QObject {
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

void clickOnEnter(QAbstractButton* button) {
    button->installEventFilter(new ClickOnEnter(button));
}

} // namespace velmora

#include "ui/blocks/accessibility.h"

#include "ui/blocks/reading_order.h"

#include <QAccessibleWidget>
#include <QMenu>
#include <QWidget>

#include <algorithm>

namespace velmora {

namespace {

constexpr const char* roleProperty = "velmoraRole";

/// Whether assistive technology has anything to say about the widget or about one inside it.
bool isAccessible(const QWidget* widget) {
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(widget));
    if (!interface->text(QAccessible::Name).isEmpty())
        return true;
    switch (interface->role()) {
    case QAccessible::Client:
    case QAccessible::StaticText:
    case QAccessible::Graphic:
    case QAccessible::AlertMessage:
        return std::ranges::any_of(childrenInReadingOrder(*widget), isAccessible);
    default:
        return true;
    }
}

/// Reads the children in the order of the layout, then open menus, and leaves out decoration.
class ReadingWidget : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.modal = role() == QAccessible::Dialog;
        return state;
    }
    int childCount() const override { return static_cast<int>(children().size()); }
    QAccessibleInterface* child(int index) const override {
        return QAccessible::queryAccessibleInterface(children().value(index));
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return child ? static_cast<int>(children().indexOf(qobject_cast<QWidget*>(child->object()))) : -1;
    }

private:
    QList<QWidget*> children() const {
        QList<QWidget*> found = childrenInReadingOrder(*widget());
        found.removeIf([](const QWidget* child) { return !isAccessible(child); });
        for (QObject* child : widget()->children())
            if (auto* menu = qobject_cast<QMenu*>(child); menu && menu->isVisible())
                found.append(menu);
        return found;
    }
};

/// Qt asks for the class of the object, then for its base classes.
QAccessibleInterface* interfaceOf(const QString& className, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    if (!widget)
        return nullptr;
    const QVariant role = widget->property(roleProperty);
    if (role.isValid())
        return new ReadingWidget(widget, static_cast<QAccessible::Role>(role.toInt()));
    return className == QLatin1String("QWidget") ? new ReadingWidget(widget) : nullptr;
}

} // namespace

void declareRole(QWidget* widget, QAccessible::Role role) {
    static const bool installed = (QAccessible::installFactory(interfaceOf), true);
    Q_UNUSED(installed)
    widget->setProperty(roleProperty, static_cast<int>(role));
}

void announce(QWidget* widget, const QString& message) {
    widget->setAccessibleName(message);
    QAccessibleEvent alert(widget, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

} // namespace velmora

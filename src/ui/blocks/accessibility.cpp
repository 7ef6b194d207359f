#include "ui/blocks/accessibility.h"

#include <QAccessibleWidget>
#include <QWidget>

namespace velmora {

namespace {

constexpr const char* roleProperty = "velmoraRole";

QAccessibleInterface* interfaceOf(const QString&, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    if (!widget || !widget->property(roleProperty).isValid())
        return nullptr;
    return new QAccessibleWidget(widget,
                                 static_cast<QAccessible::Role>(widget->property(roleProperty).toInt()));
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

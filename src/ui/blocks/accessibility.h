#pragma once

#include <QAccessible>

class QWidget;

namespace velmora {

/// Sets the role that assistive technology reports for a self-painted widget. The name it reads is
/// QWidget::accessibleName.
void declareRole(QWidget* widget, QAccessible::Role role);

/// Sets the widget's accessible name and has assistive technology read it at once.
void announce(QWidget* widget, const QString& message);

} // namespace velmora

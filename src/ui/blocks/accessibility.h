#pragma once

#include <QAccessible>

class QWidget;

namespace velmora {

/// Tells assistive technology what a widget is that paints itself. Its name is QWidget::accessibleName.
void declareRole(QWidget* widget, QAccessible::Role role);

} // namespace velmora

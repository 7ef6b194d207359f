#pragma once

#include <QAccessible>

class QWidget;

namespace velmora {

/// Sets the role that assistive technology reports for a self-painted widget. The name it reads is
/// QWidget::accessibleName.
void declareRole(QWidget* widget, QAccessible::Role role);

} // namespace velmora

#pragma once

#include <QList>

class QWidget;

namespace velmora {

/// The direct child widgets in the order of the parent's layout, then those that no layout holds.
QList<QWidget*> childrenInReadingOrder(const QWidget& parent);

/// Moves the focus to the next or previous control inside `root` that Tab reaches, round and round. Returns
/// false if there is none.
bool focusInReadingOrder(QWidget& root, bool next);

} // namespace velmora

#include "ui/blocks/reading_order.h"

#include <QLayout>
#include <QWidget>

#include <algorithm>

namespace velmora {

namespace {

void addWidgets(QLayout& layout, QList<QWidget*>& found) {
    for (int i = 0; i < layout.count(); ++i) {
        if (QWidget* widget = layout.itemAt(i)->widget())
            found.append(widget);
        else if (QLayout* inner = layout.itemAt(i)->layout())
            addWidgets(*inner, found);
    }
}

void addVisibleDescendants(const QWidget& parent, QList<QWidget*>& found) {
    for (QWidget* child : childrenInReadingOrder(parent))
        if (child->isVisible()) {
            found.append(child);
            addVisibleDescendants(*child, found);
        }
}

} // namespace

QList<QWidget*> childrenInReadingOrder(const QWidget& parent) {
    QList<QWidget*> found;
    if (parent.layout())
        addWidgets(*parent.layout(), found);
    for (QObject* child : parent.children())
        if (auto* widget = qobject_cast<QWidget*>(child);
            widget && !widget->isWindow() && !found.contains(widget))
            found.append(widget);
    return found;
}

bool focusInReadingOrder(QWidget& root, bool next) {
    QList<QWidget*> widgets;
    addVisibleDescendants(root, widgets);
    if (!next)
        std::ranges::reverse(widgets);
    const auto focused = std::ranges::find(widgets, root.window()->focusWidget());
    if (focused != widgets.end())
        std::rotate(widgets.begin(), focused + 1, widgets.end());
    const auto target = std::ranges::find_if(widgets, [](const QWidget* widget) {
        return widget->isEnabled() && widget->focusPolicy() & Qt::TabFocus;
    });
    if (target == widgets.end())
        return false;
    (*target)->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

} // namespace velmora

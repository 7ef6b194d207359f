#include "ui/blocks/flow_layout.h"

#include <algorithm>

namespace velmora {

template <class Place>
int FlowLayout::arrange(int width, Place place) const {
    int x = 0, y = 0, rowHeight = 0;
    for (int i = 0; i < count(); ++i) {
        QLayoutItem* item = itemAt(i);
        if (item->isEmpty())
            continue;
        const QSize size(std::min(item->sizeHint().width(), width), item->sizeHint().height());
        if (x > 0 && x + size.width() > width) {
            x = 0;
            y += rowHeight + rowGap_;
            rowHeight = 0;
        }
        place(*item, QRect({x, y}, size));
        x += size.width() + gap_;
        rowHeight = std::max(rowHeight, size.height());
    }
    return y + rowHeight;
}

/// All widgets in one row.
QSize FlowLayout::sizeHint() const {
    int right = 0;
    const int height = arrange(QLAYOUTSIZE_MAX,
                               [&](QLayoutItem&, const QRect& rect) { right = rect.left() + rect.width(); });
    return {right, height};
}

QSize FlowLayout::minimumSize() const {
    return {0, sizeHint().height()};
}

int FlowLayout::heightForWidth(int width) const {
    return arrange(width, [](QLayoutItem&, const QRect&) {});
}

void FlowLayout::setGeometry(const QRect& rect) {
    QLayout::setGeometry(rect);
    arrange(rect.width(), [&](QLayoutItem& item, const QRect& place) {
        item.setGeometry(place.translated(rect.topLeft()));
    });
}

} // namespace velmora

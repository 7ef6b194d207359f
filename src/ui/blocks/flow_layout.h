#pragma once

#include "ui/blocks/layouts.h"

namespace velmora {

/// Places its widgets in rows from left to right, and begins a new row where the next one does not fit.
class FlowLayout : public ItemLayout {
public:
    /// The gaps between two widgets in a row and between two rows, in pixels.
    FlowLayout(int gap, int rowGap) : gap_(gap), rowGap_(rowGap) {}

    QSize sizeHint() const override;
    QSize minimumSize() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    void setGeometry(const QRect& rect) override;

private:
    /// Calls `place` with each visible item and its rectangle in rows of this width; returns their height.
    template <class Place>
    int arrange(int width, Place place) const;

    int gap_, rowGap_;
};

} // namespace velmora

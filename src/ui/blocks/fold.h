#pragma once

#include "ui/look/transition.h"

#include <QWidget>

namespace velmora {

/// Opens and closes a block by animating its height; the layout below moves with it.
class Fold : public QWidget {
    Q_OBJECT

public:
    /// Becomes the parent of `block`. `gap` is the space below it while open, in pixels.
    Fold(QWidget* block, int gap, std::chrono::milliseconds duration, QWidget* parent);

    void setOpen(bool open);
    bool isOpen() const { return open_; }

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

private:
    int fullHeight() const;
    void applyHeight();

    QWidget* block_;
    int gap_;
    Transition share_; ///< visible share of the height: 0 closed, 1 open
    bool open_ = false;
};

} // namespace velmora

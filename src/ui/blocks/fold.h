#pragma once

#include "ui/look/transition.h"

#include <QWidget>

namespace velmora {

/// Opens and closes a block over its height, moving what lies below.
class Fold : public QWidget {
    Q_OBJECT

public:
    /// Takes the block over. `gap` is room below it while open, pixels.
    Fold(QWidget* block, int gap, std::chrono::milliseconds duration, QWidget* parent);

    void setOpen(bool open);
    bool isOpen() const { return open_; }

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

private:
    int fullHeight() const;
    void follow();

    QWidget* block_;
    int gap_;
    Transition share_; ///< of the full height: 0 closed, 1 open
    bool open_ = false;
};

} // namespace velmora

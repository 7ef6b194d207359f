#pragma once

#include <QObject>

#include <vector>

class QWidget;

namespace velmora {

/// Lets a window without a native frame be resized at its edges and corners. The bands lie over everything
/// else in the window and are away while it is maximised or fills the screen.
class ResizeBands : public QObject {
    Q_OBJECT

public:
    explicit ResizeBands(QWidget* window);

    /// Keeps the bands over widgets that were shown since.
    void raise();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void lay();

    QWidget* window_;
    std::vector<QWidget*> bands_;
};

} // namespace velmora

#pragma once

#include <QGridLayout>

class QWidget;

namespace velmora {

/// Resize handles for a window without a native frame: a layout of bands along its edges and corners. They
/// are hidden while the window is maximised or full screen.
class ResizeBands : public QGridLayout {
    Q_OBJECT

public:
    explicit ResizeBands(QWidget* window);

    /// Raises the bands above widgets that were shown later.
    void raise();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* window_;
    QList<QWidget*> bands_;
};

} // namespace velmora

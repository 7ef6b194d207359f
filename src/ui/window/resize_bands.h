#pragma once

#include <QGridLayout>

class QWidget;

namespace velmora {

/// Lets a window without a native frame be resized at its edges and corners, which the bands of this layout
/// cover. They are away while the window is maximised or fills the screen.
class ResizeBands : public QGridLayout {
    Q_OBJECT

public:
    explicit ResizeBands(QWidget* window);

    /// Keeps the bands over widgets that were shown since.
    void raise();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* window_;
    QList<QWidget*> bands_;
};

} // namespace velmora

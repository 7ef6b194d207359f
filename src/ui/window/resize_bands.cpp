#include "ui/window/resize_bands.h"

#include "ui/look/measures.h"

#include <QEvent>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

namespace velmora {

namespace {

Qt::CursorShape cursorFor(Qt::Edges edges) {
    if (edges == (Qt::LeftEdge | Qt::TopEdge) || edges == (Qt::RightEdge | Qt::BottomEdge))
        return Qt::SizeFDiagCursor;
    if (edges == (Qt::RightEdge | Qt::TopEdge) || edges == (Qt::LeftEdge | Qt::BottomEdge))
        return Qt::SizeBDiagCursor;
    return edges & (Qt::LeftEdge | Qt::RightEdge) ? Qt::SizeHorCursor : Qt::SizeVerCursor;
}

/// The handle for one edge or corner.
class Band : public QWidget {
public:
    Band(Qt::Edges edges, QWidget* window) : QWidget(window), edges_(edges) { setCursor(cursorFor(edges)); }

protected:
    void mousePressEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton)
            window()->windowHandle()->startSystemResize(edges_);
    }

private:
    Qt::Edges edges_;
};

} // namespace

ResizeBands::ResizeBands(QWidget* window) : window_(window) {
    setContentsMargins(0, 0, 0, 0);
    setSpacing(0);
    setRowStretch(1, 1);
    setColumnStretch(1, 1);
    for (const int end : {0, 2}) {
        setRowMinimumHeight(end, Measure::resizeBand);
        setColumnMinimumWidth(end, Measure::resizeBand);
    }
    for (const Qt::Edges edges :
         {Qt::Edges(Qt::LeftEdge), Qt::Edges(Qt::RightEdge), Qt::Edges(Qt::TopEdge),
          Qt::Edges(Qt::BottomEdge), Qt::LeftEdge | Qt::TopEdge, Qt::RightEdge | Qt::TopEdge,
          Qt::LeftEdge | Qt::BottomEdge, Qt::RightEdge | Qt::BottomEdge}) {
        const int row = edges & Qt::TopEdge ? 0 : edges & Qt::BottomEdge ? 2 : 1;
        const int column = edges & Qt::LeftEdge ? 0 : edges & Qt::RightEdge ? 2 : 1;
        bands_.append(new Band(edges, window));
        addWidget(bands_.back(), row, column);
    }
    window->installEventFilter(this);
}

void ResizeBands::raise() {
    for (QWidget* band : bands_)
        band->raise();
}

bool ResizeBands::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::WindowStateChange)
        for (QWidget* band : bands_)
            band->setVisible(!window_->isMaximized() && !window_->isFullScreen());
    return QGridLayout::eventFilter(watched, event);
}

} // namespace velmora

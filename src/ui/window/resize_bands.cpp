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

/// One edge or corner.
class Band : public QWidget {
public:
    Band(Qt::Edges edges, QWidget* window) : QWidget(window), edges_(edges) { setCursor(cursorFor(edges)); }

    QRect placeIn(QSize window) const {
        constexpr int band = Measure::resizeBand;
        const bool left = edges_ & Qt::LeftEdge, right = edges_ & Qt::RightEdge;
        const bool top = edges_ & Qt::TopEdge, bottom = edges_ & Qt::BottomEdge;
        const int x = left ? 0 : right ? window.width() - band : band;
        const int y = top ? 0 : bottom ? window.height() - band : band;
        const int width = left || right ? band : window.width() - 2 * band;
        const int height = top || bottom ? band : window.height() - 2 * band;
        return {x, y, width, height};
    }

protected:
    void mousePressEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton)
            window()->windowHandle()->startSystemResize(edges_);
    }

private:
    Qt::Edges edges_;
};

} // namespace

ResizeBands::ResizeBands(QWidget* window) : QObject(window), window_(window) {
    for (const Qt::Edges edges :
         {Qt::Edges(Qt::LeftEdge), Qt::Edges(Qt::RightEdge), Qt::Edges(Qt::TopEdge),
          Qt::Edges(Qt::BottomEdge), Qt::LeftEdge | Qt::TopEdge, Qt::RightEdge | Qt::TopEdge,
          Qt::LeftEdge | Qt::BottomEdge, Qt::RightEdge | Qt::BottomEdge})
        bands_.push_back(new Band(edges, window));
    window->installEventFilter(this);
    lay();
}

void ResizeBands::raise() {
    for (QWidget* band : bands_)
        band->raise();
}

bool ResizeBands::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize || event->type() == QEvent::WindowStateChange)
        lay();
    return QObject::eventFilter(watched, event);
}

void ResizeBands::lay() {
    const bool resizable = !window_->isMaximized() && !window_->isFullScreen();
    for (QWidget* widget : bands_) {
        widget->setVisible(resizable);
        widget->setGeometry(static_cast<Band*>(widget)->placeIn(window_->size()));
    }
}

} // namespace velmora

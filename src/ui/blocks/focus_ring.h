#pragma once

#include <QPointer>
#include <QWidget>

#include <optional>

namespace velmora {

/// The ring around the focused widget of a window, above everything else in it. It appears when the keyboard
/// moves the focus, not when the mouse does.
class FocusRing : public QWidget {
    Q_OBJECT

public:
    /// How the ring fits a widget.
    struct RingStyle {
        double radius = 0;
        bool dark = false;        ///< on a navy surface
        bool edged = false;       ///< on a picture: with a navy edge, so that it stands out from any colour
        bool field = false;       ///< a text field: a halo at its border, also after a click
        bool roundParent = false; ///< ring the parent, for one part of a larger control
        QRect part = {};          ///< ring only this part of the widget, such as a slider's thumb

        bool operator==(const RingStyle&) const = default;
    };

    /// A widget without a style gets no ring. The style can change while the widget has the focus.
    static void setRingStyle(QWidget* widget, const RingStyle& style);

    explicit FocusRing(QWidget* window);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    static std::optional<RingStyle> ringStyleOf(const QWidget* widget);
    void attach(QWidget* widget, const RingStyle& style);
    void detach();
    void updatePosition();

    QPointer<QWidget> target_;
    RingStyle style_;
    QList<QPointer<QWidget>> watched_; ///< the focused widget and its ancestors; the ring moves with them
    bool focusHidden_ = false;         ///< the focused widget was hidden, so Qt moves the focus to another
    QRect clip_;                       ///< the part of the window that scroll areas leave visible
};

} // namespace velmora

#pragma once

#include <QPointer>
#include <QWidget>

#include <optional>

namespace velmora {

/// The ring around what has the keyboard's focus in a window. It shows when the keyboard moved the focus, not
/// when the mouse did, and lies above everything else in the window.
class FocusRing : public QWidget {
    Q_OBJECT

public:
    /// How the ring fits a widget.
    struct RingStyle {
        double radius = 0;
        bool dark = false;        ///< on a navy surface
        bool field = false;       ///< a text field: a halo at its border, whatever moved the focus
        bool roundParent = false; ///< one part of a control that is ringed as a whole
    };

    /// A widget without a style gets no ring.
    static void setRingStyle(QWidget* widget, const RingStyle& style);

    explicit FocusRing(QWidget* window);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    static std::optional<RingStyle> ringStyleOf(const QWidget* widget);
    void follow(QWidget* widget, const RingStyle& style);
    void unfollow();
    void place();

    QPointer<QWidget> target_;
    RingStyle style_;
    QList<QPointer<QWidget>> watched_; ///< the target and what it lies in: when they move, the ring does
    bool jumps_ = false;               ///< what had the focus was hidden, so Qt moves it on
    QRect clip_;                       ///< what scroll areas leave to be seen
};

} // namespace velmora

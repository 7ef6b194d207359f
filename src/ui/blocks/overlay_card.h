#pragma once

#include "ui/look/transition.h"

#include <QPainterPath>
#include <QPixmap>
#include <QPointer>
#include <QWidget>

class QVBoxLayout;

namespace velmora {

/// A modal card on a veil over the window: it blocks clicks on everything behind it and keeps the
/// keyboard focus inside. The window's layout sets its size. The title strip stays above the veil, and the
/// card below the strip.
class OverlayCard : public QWidget {
    Q_OBJECT

public:
    OverlayCard(int cardWidth, QWidget* window);

    void open();
    void close();
    bool isOpen() const { return open_; }
    /// Whether the open card or its veil lies over the widget.
    bool covers(const QWidget& widget) const;

signals:
    /// The owner pressed Escape.
    void dismissed();
    void openChanged();

protected:
    /// Layout for the card's content.
    QVBoxLayout* column() const { return column_; }
    QWidget* card() const { return card_; }
    /// Places the card with its top left corner at this point of the window instead of in the middle.
    void setCorner(QPoint corner);
    /// Leaves out a rounded rectangle of the window from the veil; what lies there stays bright, but takes no
    /// clicks.
    void setBright(const QRect& area, double radius);
    /// Focuses a control when the card has opened. By default none: the card itself keeps the focus, so that
    /// no key triggers a button by accident.
    virtual void focusFirst();

    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    QPainterPath veil() const;
    void returnFocus();
    void finishTransition();

    QWidget* card_;
    QVBoxLayout* column_;
    Transition appearance_; ///< 0 closed, 1 open
    QPixmap picture_;       ///< of the card, drawn during the transition
    QPointer<QWidget> focusBefore_;
    QRect bright_;
    double brightRadius_ = 0;
    bool open_ = false;
};

} // namespace velmora

#pragma once

#include "ui/look/transition.h"

#include <QPixmap>
#include <QPointer>
#include <QWidget>

class QVBoxLayout;

namespace velmora {

/// A card over the whole window on a veil: nothing behind it can be pressed, and the keyboard's focus stays
/// inside. The window's layout gives it its size.
class OverlayCard : public QWidget {
    Q_OBJECT

public:
    OverlayCard(int cardWidth, QWidget* window);

    void open();
    void close();
    bool isOpen() const { return open_; }

signals:
    /// Escape was pressed.
    void dismissed();

protected:
    /// The column that the card's content goes into.
    QVBoxLayout* column() const { return column_; }
    QWidget* card() const { return card_; }
    /// What has the focus when the card opens: the card itself, so that no key can press a button by
    /// accident.
    virtual void focusFirst();

    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void settled();
    QList<QWidget*> focusable() const;

    QWidget* card_;
    QVBoxLayout* column_;
    Transition appearance_; ///< 0: away; 1: there
    QPixmap picture_;       ///< the card while it moves
    QPointer<QWidget> focusBefore_;
    bool open_ = false;
};

} // namespace velmora

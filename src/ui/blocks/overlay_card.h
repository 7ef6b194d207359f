#pragma once

#include "ui/look/transition.h"

#include <QPixmap>
#include <QPointer>
#include <QWidget>

class QVBoxLayout;

namespace velmora {

/// A modal card on a veil over the whole window: it blocks clicks on everything behind it and keeps the
/// keyboard focus inside. The window's layout sets its size. The title strip stays above the veil, and the
/// card below the strip.
class OverlayCard : public QWidget {
    Q_OBJECT

public:
    OverlayCard(int cardWidth, QWidget* window);

    void open();
    void close();
    bool isOpen() const { return open_; }

signals:
    /// The owner pressed Escape.
    void dismissed();
    void openChanged();

protected:
    /// Layout for the card's content.
    QVBoxLayout* column() const { return column_; }
    QWidget* card() const { return card_; }
    /// Focuses a control when the card has opened. By default none: the card itself keeps the focus, so that
    /// no key triggers a button by accident.
    virtual void focusFirst();

    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void returnFocus();
    void finishTransition();
    QList<QWidget*> focusable() const;

    QWidget* card_;
    QVBoxLayout* column_;
    Transition appearance_; ///< 0 closed, 1 open
    QPixmap picture_;       ///< of the card, drawn during the transition
    QPointer<QWidget> focusBefore_;
    bool open_ = false;
};

} // namespace velmora

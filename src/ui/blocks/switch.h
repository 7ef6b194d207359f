#pragma once

#include "ui/look/transition.h"

#include <QAbstractButton>

namespace velmora {

/// A switch that is on or off. Space turns it.
class Switch : public QAbstractButton {
    Q_OBJECT

public:
    Switch(const QString& name, QWidget* parent);

    /// Emits nothing.
    void setChecked(bool on);

signals:
    /// The owner turned it, by mouse, key or an accessible action.
    void turned(bool on);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void slide(bool on);

    Transition position_; ///< of the thumb: 0 off, 1 on
};

} // namespace velmora

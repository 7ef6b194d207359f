#pragma once

#include "ui/look/transition.h"

#include <QAbstractButton>

namespace velmora {

/// An on/off switch. Space toggles it.
class Switch : public QAbstractButton {
    Q_OBJECT

public:
    Switch(const QString& name, QWidget* parent);

    /// Does not emit `turned`.
    void setChecked(bool on);

signals:
    /// The owner turned it on or off by mouse, key or accessible action.
    void turned(bool on);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void slide(bool on);

    Transition position_; ///< position of the thumb: 0 off, 1 on
};

} // namespace velmora

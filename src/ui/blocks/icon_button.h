#pragma once

#include "ui/look/icons.h"

#include <QAbstractButton>

namespace velmora {

/// A small square button that shows only an icon; its name is told by a tooltip.
class IconButton : public QAbstractButton {
    Q_OBJECT

public:
    IconButton(Icon icon, const QString& name, QWidget* parent);

    void setIcon(Icon icon, const QString& name);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Icon icon_;
};

} // namespace velmora

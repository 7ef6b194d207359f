#pragma once

#include "ui/look/icons.h"

#include <QAbstractButton>

namespace velmora {

/// A small square button that shows only an icon. Its tooltip shows its name.
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

#pragma once

#include "ui/look/icons.h"

#include <QWidget>

namespace velmora {

class Text;

/// What stands in the middle of an empty screen: an icon, what its emptiness means, and a control that helps.
class EmptyState : public QWidget {
    Q_OBJECT

public:
    /// Takes ownership of the control.
    EmptyState(Icon icon, QWidget* control, QWidget* parent);

    void setTexts(const QString& title, const QString& body);

private:
    Text* title_;
    Text* body_;
};

} // namespace velmora

#pragma once

#include "ui/look/icons.h"

#include <QWidget>

namespace velmora {

class Text;

/// The centre of an empty screen: an icon, an explanation, and a control that helps.
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

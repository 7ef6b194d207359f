#pragma once

#include "ui/look/text.h"

#include <QWidget>

namespace velmora {

/// Shows the full text in the widget's tooltip if the widget cannot paint all of it.
inline void setToolTipIfElided(QWidget& widget, const QString& fullText, bool isElided) {
    widget.setToolTip(isElided ? plainToolTip(fullText) : QString());
}

} // namespace velmora

#include "ui/look/motion.h"

#include <QApplication>
#include <QStyle>

#include <chrono>

namespace velmora::Motion {

double seconds() {
    const auto sinceStart = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<double>(sinceStart).count();
}

bool reduced() {
    return QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) == 0;
}

} // namespace velmora::Motion

#include "ui/look/motion.h"

#include "ui/look/ui_clock.h"

#include <QApplication>
#include <QStyle>

#include <cmath>

namespace velmora::Motion {

double seconds() {
    return std::chrono::duration<double>(UiClock::current().now()).count();
}

double pulseAt(double seconds) {
    constexpr double period = 1.6; // seconds
    return std::fmod(seconds, period) / period;
}

bool reduced() {
    return QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) == 0;
}

} // namespace velmora::Motion

#include "ui/look/tokens.h"

namespace velmora::SB {

namespace {

QLinearGradient evenly(double left, double right, const QColor& first, const QColor& second,
                       const QColor& third) {
    QLinearGradient gradient(left, 0, right, 0);
    gradient.setColorAt(0, first);
    gradient.setColorAt(0.5, second);
    gradient.setColorAt(1, third);
    return gradient;
}

} // namespace

QColor mixed(const QColor& under, const QColor& over, double share) {
    const auto part = static_cast<float>(share);
    const auto between = [part](float from, float to) { return from + (to - from) * part; };
    return QColor::fromRgbF(between(under.redF(), over.redF()), between(under.greenF(), over.greenF()),
                            between(under.blueF(), over.blueF()), between(under.alphaF(), over.alphaF()));
}

QLinearGradient gradientDark(double left, double right) {
    return evenly(left, right, lilac, softBlue, dTeal);
}

QLinearGradient gradientLight(double left, double right) {
    return evenly(left, right, purple, blue, teal);
}

} // namespace velmora::SB

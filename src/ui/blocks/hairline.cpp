#include "ui/blocks/hairline.h"

#include "ui/look/tokens.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr double darkLine = 0.2;

QColor colorOf(Hairline::Tone tone) {
    switch (tone) {
    case Hairline::Tone::between:
        return SB::rule2;
    case Hairline::Tone::dark:
        return SB::faded(SB::dBody, darkLine);
    case Hairline::Tone::first:
        break;
    }
    return SB::rule;
}

} // namespace

void paintHairline(QPainter& painter, const QRect& line, const QColor& color) {
    const double scale = painter.device()->devicePixelRatioF();
    const double thickness = std::max(std::floor(scale), 1.0) / scale;
    QRectF thin = line;
    if (line.width() < line.height())
        thin.setWidth(thickness);
    else
        thin.setHeight(thickness);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(thin, color);
    painter.restore();
}

Hairline::Hairline(QWidget* parent, Tone tone) : QWidget(parent), color_(colorOf(tone)) {
    setFixedHeight(1);
}

void Hairline::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintHairline(painter, rect(), color_);
}

} // namespace velmora

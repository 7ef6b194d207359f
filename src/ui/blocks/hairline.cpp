#include "ui/blocks/hairline.h"

#include "ui/look/tokens.h"

#include <QPainter>

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

Hairline::Hairline(QWidget* parent, Tone tone) : QWidget(parent), color_(colorOf(tone)) {
    setFixedHeight(1);
}

void Hairline::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(rect(), color_);
}

} // namespace velmora

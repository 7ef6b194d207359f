#include "ui/blocks/hairline.h"

#include "ui/look/paint.h"
#include "ui/look/tokens.h"

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
    QPainter painter(this);
    paintHairline(painter, rect(), color_);
}

} // namespace velmora

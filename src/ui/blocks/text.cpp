#include "ui/blocks/text.h"

#include "ui/blocks/accessibility.h"
#include "ui/blocks/tool_tip.h"
#include "ui/look/tokens.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace velmora {

namespace {

bool isTitle(const TextStyle& style) {
    return style.face == SBFont::Face::displayMedium || style == Type::groupHeading;
}

} // namespace

Text::Text(const QString& text, const TextStyle& style, const QColor& color, QWidget* parent)
    : QWidget(parent), text_(text), style_(style), color_(color) {
    declareRole(this, isTitle(style) ? QAccessible::Heading : QAccessible::StaticText);
    setAccessibleName(text);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void Text::setText(const QString& text) {
    if (text == text_)
        return;
    text_ = text;
    broken_ = {};
    setAccessibleName(text);
    updateToolTip();
    updateGeometry();
    update();
}

void Text::setStyle(const TextStyle& style) {
    if (style == style_)
        return;
    style_ = style;
    broken_ = {};
    updateGeometry();
    update();
}

void Text::setColor(const QColor& color) {
    if (color == color_)
        return;
    color_ = color;
    update();
}

void Text::setAlignment(Qt::Alignment alignment) {
    alignment_ = alignment;
    update();
}

void Text::setMaximumLines(int lines) {
    maximumLines_ = lines;
    broken_ = {};
    updateGeometry();
}

void Text::setWrapWidth(int width) {
    wrapWidth_ = width;
    updateGeometry();
}

QSize Text::sizeHint() const {
    return {static_cast<int>(std::ceil(textWidth(text_, style_))), static_cast<int>(style_.line)};
}

QSize Text::minimumSizeHint() const {
    return {0, static_cast<int>(style_.line)};
}

int Text::heightForWidth(int width) const {
    return static_cast<int>(std::ceil(static_cast<double>(lines(width).size()) * style_.line));
}

const QStringList& Text::lines(int width) const {
    if (wrapWidth_ > 0)
        width = std::min(width, wrapWidth_);
    if (width == broken_[0].width)
        return broken_[0].lines;
    std::swap(broken_[0], broken_[1]);
    if (width != broken_[0].width)
        broken_[0] = {width, maximumLines_ == 1 ? QStringList{elided(text_, style_, width)}
                                                : brokenIntoLines(text_, style_, width, maximumLines_)};
    return broken_[0].lines;
}

void Text::updateToolTip() {
    if (maximumLines_ > 0)
        setToolTipIfElided(*this, text_, lines(width()).join(' ').endsWith(QChar(0x2026)));
}

void Text::resizeEvent(QResizeEvent*) {
    updateToolTip();
}

void Text::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QRectF line(0, 0, width(), style_.line);
    TextStyle style = style_;
    style.upperCase = false; // lines() already returns upper case
    for (const QString& shown : lines(width())) {
        drawText(painter, line, shown, style, color_, alignment_);
        line.translate(0, style_.line);
    }
}

Eyebrow::Eyebrow(const QString& text, bool dark, QWidget* parent)
    : Text(text, Type::eyebrow, dark ? SB::dLabel : SB::muted, parent) {}

Label2::Label2(const QString& text, bool dark, QWidget* parent)
    : Text(text, Type::label2, dark ? SB::dLabel : SB::muted, parent) {}

} // namespace velmora

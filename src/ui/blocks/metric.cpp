#include "ui/blocks/metric.h"

#include "ui/blocks/accessibility.h"
#include "ui/look/measures.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"

namespace velmora {

Metric::Metric(const QString& label, Size size, bool dark, QWidget* parent)
    : QWidget(parent),
      label_(label),
      style_(size == Size::telemetry ? Type::telemetry : Type::metric),
      dark_(dark) {
    declareRole(this, QAccessible::StaticText);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void Metric::setValue(const QString& value, const QString& unit) {
    if (value == value_ && unit == unit_)
        return;
    const bool grows = value.size() != value_.size() || unit != unit_;
    value_ = value;
    unit_ = unit;
    describe();
    if (grows)
        updateGeometry();
    update();
}

void Metric::setReason(const QString& reason) {
    if (reason == reason_)
        return;
    reason_ = reason;
    describe();
    updateGeometry();
    update();
}

void Metric::describe() {
    QStringList parts{label_, unit_.isEmpty() ? value_ : value_ + ' ' + unit_};
    if (!reason_.isEmpty())
        parts.append(reason_);
    setAccessibleName(parts.join(QStringLiteral(", ")));
}

void Metric::setTint(const std::optional<QColor>& tint) {
    if (tint == tint_)
        return;
    tint_ = tint;
    update();
}

void Metric::setOnPill(bool onPill) {
    if (onPill == onPill_)
        return;
    onPill_ = onPill;
    update();
}

/// A value that is too wide is drawn smaller.
const TextStyle& Metric::valueStyle() const {
    return textWidth(value_, style_) > width() ? Type::metric : style_;
}

/// How far a value that begins with a narrow "1" is moved left, so that its ink begins where its caption's
/// does.
double Metric::outdent() const {
    if (!value_.startsWith('1') || label_.isEmpty())
        return 0;
    return bearingOf('1', valueStyle()) - bearingOf(label_.front().toUpper(), Type::caption);
}

QRectF Metric::pill() const {
    const double shift = outdent();
    const double width =
        textWidth(value_, valueStyle()) - shift + Measure::unitGap + textWidth(unit_, Type::unit);
    return {-Measure::gap8, Measure::pillTop, width + 2 * Measure::gap8,
            Measure::pillBottom - Measure::pillTop};
}

void Metric::setDimmed(bool dimmed) {
    if (dimmed == dimmed_)
        return;
    dimmed_ = dimmed;
    update();
}

QSize Metric::sizeHint() const {
    const double value = textWidth(value_, style_) + Measure::unitGap + textWidth(unit_, Type::unit);
    const double width = std::max(textWidth(label_, Type::caption), value);
    return {static_cast<int>(width) + 1, valueHeight()};
}

int Metric::valueHeight() const {
    return static_cast<int>(Type::caption.line + Measure::metricGap + style_.line);
}

QStringList Metric::reasonLines(int width) const {
    return reason_.isEmpty() ? QStringList() : brokenIntoLines(reason_, Type::legend, width);
}

int Metric::heightForWidth(int width) const {
    const auto lines = static_cast<double>(reasonLines(width).size());
    return valueHeight() + (lines > 0 ? static_cast<int>(Measure::reasonGap + lines * Type::legend.line) : 0);
}

void Metric::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QColor quiet = dark_ ? SB::dLabel : SB::muted;
    const QColor plain = dimmed_ ? quiet : dark_ ? SB::dTitle : SB::ink;
    const auto color = [&](const QColor& usual) { return onPill_ ? SB::page : tint_.value_or(usual); };
    QRectF row(0, 0, width(), Type::caption.line);
    drawText(painter, row, label_, Type::caption, quiet, Qt::AlignLeft);
    const TextStyle& style = valueStyle();
    row = QRectF(-outdent(), row.bottom() + Measure::metricGap, width(), style_.line);
    row.translate(0, baselineOf(style_) - baselineOf(style));
    drawText(painter, row, value_, style, color(plain), Qt::AlignLeft);
    const double sharedBaseline = baselineOf(style) - baselineOf(Type::unit);
    row.adjust(textWidth(value_, style) + Measure::unitGap, sharedBaseline, 0, 0);
    drawText(painter, row, unit_, Type::unit, color(quiet), Qt::AlignLeft);
    double top = valueHeight() + Measure::reasonGap;
    for (const QString& line : reasonLines(width())) {
        drawText(painter, QRectF(0, top, width(), Type::legend.line), line, Type::legend,
                 tint_.value_or(quiet), Qt::AlignLeft);
        top += Type::legend.line;
    }
}

} // namespace velmora

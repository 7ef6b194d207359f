#include "ui/screens/history/replay_slider.h"

#include "ui/blocks/accessibility.h"
#include "ui/blocks/focus_ring.h"
#include "ui/look/measures.h"
#include "ui/look/paint.h"
#include "ui/look/tokens.h"

#include <QMouseEvent>
#include <QSignalBlocker>

#include <algorithm>
#include <cmath>

namespace velmora {

ReplaySlider::ReplaySlider(QWidget* parent) : QAbstractSlider(parent) {
    setOrientation(Qt::Horizontal);
    setFixedHeight(Measure::replaySlider);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Replay time"));
    setSingleStep(1);
    setPageStep(10);
    FocusRing::setRingStyle(this, {Measure::buttonRadius});
    connect(this, &QAbstractSlider::valueChanged, this,
            [this](int steps) { emit moved(std::min(steps * pathInterval, length_)); });
}

void ReplaySlider::setRecord(const MissionRecord& record) {
    const QSignalBlocker silently(this);
    length_ = durationOf(record);
    setRange(0, static_cast<int>(std::ceil(length_ / pathInterval)));
    gaps_ = gapsOf(record);
    marks_.clear();
    for (const Notice& notice : record.notices)
        marks_.push_back(std::clamp((notice.time - record.start).count(), 0.0, length_));
    update();
}

void ReplaySlider::setPosition(double seconds) {
    if (seconds == shown_)
        return;
    const QSignalBlocker silently(this);
    shown_ = seconds;
    setValue(static_cast<int>(std::lround(seconds / pathInterval)));
    update();
}

double ReplaySlider::xOf(double seconds) const {
    const double share = length_ > 0 ? seconds / length_ : 0;
    return Measure::replayThumb / 2 + share * (width() - Measure::replayThumb);
}

void ReplaySlider::moveTo(double x) {
    const double share = (x - Measure::replayThumb / 2) / std::max(width() - Measure::replayThumb, 1.0);
    setValue(static_cast<int>(std::lround(std::clamp(share, 0.0, 1.0) * length_ / pathInterval)));
}

void ReplaySlider::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    setSliderDown(true);
    moveTo(event->position().x());
}

void ReplaySlider::mouseMoveEvent(QMouseEvent* event) {
    if (isSliderDown())
        moveTo(event->position().x());
}

void ReplaySlider::mouseReleaseEvent(QMouseEvent*) {
    setSliderDown(false);
}

void ReplaySlider::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const double middle = height() / 2.0, half = Measure::replayTrack / 2;
    const auto track = [&](double from, double to, const QColor& color) {
        fillRounded(painter, {xOf(from), middle - half, xOf(to) - xOf(from), Measure::replayTrack}, half,
                    color);
    };
    track(0, length_, SB::edge);
    track(0, shown_, SB::teal);
    for (const TimeSpan& gap : gaps_)
        painter.fillRect(
            QRectF(xOf(gap.from), middle - half, xOf(gap.to) - xOf(gap.from), Measure::replayTrack),
            SB::page);
    for (const double mark : marks_)
        painter.fillRect(QRectF(xOf(mark) - 0.5, middle + half + 2, 1, Measure::replayMark), SB::muted);
    fillDisc(painter, {xOf(shown_), middle}, Measure::replayThumb, SB::page, SB::edge);
}

} // namespace velmora

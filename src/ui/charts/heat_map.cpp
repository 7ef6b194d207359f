#include "ui/charts/heat_map.h"

#include "ui/blocks/accessibility.h"
#include "ui/blocks/focus_ring.h"
#include "ui/charts/chart_measures.h"
#include "ui/charts/heat_painting.h"
#include "ui/look/paint.h"
#include "ui/look/tokens.h"

#include <QKeyEvent>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace velmora {

namespace {

/// The place that most visits passed.
P hottestOf(const WalkHeat& heat) {
    const auto hottest = std::ranges::max_element(heat.values) - heat.values.begin();
    const auto at = std::div(static_cast<long>(hottest), static_cast<long>(std::max(heat.columns, 1)));
    return heat.origin + P{static_cast<double>(at.rem), static_cast<double>(at.quot)} * heat.cell;
}

} // namespace

HeatMap::HeatMap(QWidget* parent) : QWidget(parent) {
    scene_.state = LiveState::initial();
    declareRole(this, QAccessible::Graphic);
    setAccessibleDescription(
        tr("The arrow keys move a mark, Enter shows the visits that passed within 2 m of it."));
    setMouseTracking(true);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
    FocusRing::setRingStyle(this, {scene_.measures.cornerRadius});
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    setHeat({});
}

void HeatMap::setGrounds(const LiveState& state, const Settings& settings) {
    if (scene_.state.site == state.site && scene_.settings.boundaryBuffer == settings.boundaryBuffer)
        return;
    scene_.state.site = state.site;
    scene_.settings = settings;
    updateGeometry();
    redraw();
}

void HeatMap::setHeat(WalkHeat heat) {
    heat_ = std::move(heat);
    setAccessibleName(heatKeyWords(heat_.mostVisits));
    redraw();
}

int HeatMap::heightForWidth(int width) const {
    const P size = scene_.state.site.size;
    return static_cast<int>(std::lround(width * size.y / size.x));
}

void HeatMap::redraw() {
    picture_ = {};
    update();
}

std::optional<P> HeatMap::placeAt(QPointF point) const {
    const QRectF plan = view().plan();
    if (!plan.contains(point))
        return std::nullopt;
    const QPointF metres = (point - plan.topLeft()) / view().scale();
    return P{metres.x(), metres.y()};
}

void HeatMap::mark(const std::optional<P>& place) {
    if (place == marked_)
        return;
    marked_ = place;
    update();
}

void HeatMap::moveMark(P by) {
    const P size = scene_.state.site.size, to = marked_.value_or(hottestOf(heat_)) + by;
    mark(P{std::clamp(to.x, 0.0, size.x), std::clamp(to.y, 0.0, size.y)});
}

void HeatMap::mouseMoveEvent(QMouseEvent* event) {
    mark(placeAt(event->position()));
}

void HeatMap::mousePressEvent(QMouseEvent* event) {
    pressed_ = event->button() == Qt::LeftButton;
}

void HeatMap::mouseReleaseEvent(QMouseEvent* event) {
    const auto place = placeAt(event->position());
    if (std::exchange(pressed_, false) && event->button() == Qt::LeftButton && place)
        emit placeChosen(*place);
}

void HeatMap::leaveEvent(QEvent*) {
    mark(std::nullopt);
}

void HeatMap::keyPressEvent(QKeyEvent* event) {
    constexpr double step = WalkMap::passed;
    switch (event->key()) {
    case Qt::Key_Left:
        return moveMark({-step, 0});
    case Qt::Key_Right:
        return moveMark({step, 0});
    case Qt::Key_Up:
        return moveMark({0, -step});
    case Qt::Key_Down:
        return moveMark({0, step});
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (marked_ && !event->isAutoRepeat())
            emit placeChosen(*marked_);
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}

void HeatMap::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    if (heat_.mostVisits > 0)
        moveMark({});
}

void HeatMap::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    mark(std::nullopt);
}

void HeatMap::paintEvent(QPaintEvent*) {
    const double scale = devicePixelRatioF();
    if (picture_.size() != size() * scale) {
        picture_ = QPixmap(size() * scale);
        picture_.setDevicePixelRatio(scale);
        picture_.fill(SB::navy);
        QPainter painter(&picture_);
        drawHeatMap(painter, scene_, heat_, size(), scale);
    }
    QPainter painter(this);
    fillRounded(painter, rect(), scene_.measures.cornerRadius, picture_);
    if (!marked_)
        return;
    const double radius = std::max(WalkMap::passed * view().scale(), ChartMeasure::heatPlace);
    painter.setBrush(Qt::NoBrush);
    for (const QPen& pen : {QPen(SB::navy, 3), QPen(Qt::white, 1.5)}) {
        painter.setPen(pen);
        painter.drawEllipse(view().map(*marked_), radius, radius);
    }
}

HeatKey::HeatKey(QWidget* parent) : QWidget(parent) {
    declareRole(this, QAccessible::StaticText);
    setFixedHeight(ChartMeasure::heatKeyRow);
    setMostVisits(0);
}

void HeatKey::setMostVisits(int visits) {
    if (visits == mostVisits_)
        return;
    mostVisits_ = visits;
    setAccessibleName(heatKeyWords(visits));
    update();
}

void HeatKey::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    drawHeatKey(painter, rect(), mostVisits_);
}

} // namespace velmora

#include "ui/screens/settings/limits_sketch.h"

#include "model/follow_point.h"
#include "model/truncated.h"
#include "ui/blocks/accessibility.h"
#include "ui/look/paint.h"
#include "ui/look/tokens.h"
#include "ui/map/drone_glyph.h"
#include "ui/map/map_captions.h"
#include "ui/map/map_painting.h"

#include <QPainterPath>

#include <cmath>
#include <numbers>

namespace velmora {

namespace {

constexpr P visitorShare{0.76, 0.53}; // of the site: position of the sample visitor
constexpr double heightGap = 3;       // between the drone and its height, pixels
constexpr int planDetail = 4;         // the plan is drawn larger and scaled down, which keeps its thin lines
constexpr MapMeasures measures{.captions = false,
                               .cornerRadius = Measure::buttonRadius,
                               .boundaryDash = 3.5,
                               .boundaryGap = 2.5,
                               .bufferBand = 0.34,
                               .bufferLine = 0.9,
                               .padMinimum = 4,
                               .visitorRadius = 3.6,
                               .visitorLine = 1.2,
                               .pulseFrom = 0,
                               .pulseTo = 0,
                               .droneScale = 0.5,
                               .followRing = 0.75};

/// The sentence; styled values replace %1, %2 and so on.
std::vector<TextRun> withValues(const QString& sentence, const std::vector<TextRun>& values) {
    std::vector<TextRun> runs;
    const auto add = [&](const QString& text) { runs.push_back({text, Type::legend, SB::muted}); };
    qsizetype from = 0;
    for (qsizetype at = sentence.indexOf('%'); at >= 0; at = sentence.indexOf('%', from)) {
        add(sentence.mid(from, at - from));
        const auto index = static_cast<std::size_t>(sentence.mid(at + 1, 1).toInt() - 1);
        if (index < values.size())
            runs.push_back(values[index]);
        from = at + 2;
    }
    add(sentence.mid(from));
    return runs;
}

} // namespace

LimitsSketch::LimitsSketch(QWidget* parent) : QWidget(parent) {
    declareRole(this, QAccessible::Graphic);
    setFixedSize(Measure::limitsSketch +
                 QSize(0, Measure::limitsSketchWords + 2 * static_cast<int>(Type::legend.line)));
    scene_.measures = measures;
    scene_.state = LiveState::initial();
    scene_.state.phase = Phase::following;
    placeSample();
}

void LimitsSketch::setSite(const Site& site) {
    if (site == scene_.state.site)
        return;
    scene_.state.site = site;
    plan_ = {};
    placeSample();
}

void LimitsSketch::setLimits(const Settings& settings) {
    if (settings == scene_.settings)
        return;
    scene_.settings = settings;
    placeSample();
}

void LimitsSketch::setChanging(double Settings::*limit) {
    if (limit == changing_)
        return;
    changing_ = limit;
    update();
}

/// The drone follows on the side of its pad and looks at the visitor.
void LimitsSketch::placeSample() {
    const Site& site = scene_.state.site;
    DroneState& drone = scene_.state.drone;
    Visitor visitor;
    visitor.pos = {site.size.x * visitorShare.x, site.size.y * visitorShare.y};
    drone.pos = followPoint(site.pad, visitor.pos, site, scene_.settings).at;
    drone.heading =
        std::atan2(visitor.pos.y - drone.pos.y, visitor.pos.x - drone.pos.x) * 180 / std::numbers::pi;
    drone.altitude = scene_.settings.flightHeight;
    scene_.state.visitor = visitor;
    QStringList lines;
    for (const Line& line : words())
        lines.append(textOf(line));
    setAccessibleName(lines.join(' '));
    update();
}

TextRun LimitsSketch::value(double Settings::*limit) const {
    const QString text = tr("%1 m").arg(truncated(scene_.settings.*limit));
    return limit == changing_ ? TextRun{text, Type::legendStrong, SB::purple}
                              : TextRun{text, Type::legend, SB::muted};
}

std::vector<LimitsSketch::Line> LimitsSketch::words() const {
    return {
        withValues(tr("%1 up, %2 back,"), {value(&Settings::flightHeight), value(&Settings::followDistance)}),
        withValues(tr("%1 inside your boundary"), {value(&Settings::boundaryBuffer)})};
}

void LimitsSketch::paintMap(QPainter& painter) {
    const QSize size = Measure::limitsSketch;
    const double scale = devicePixelRatioF();
    if (plan_.size() != size * scale) {
        QImage plan(size * scale * planDetail, QImage::Format_RGB32);
        plan.fill(SB::navy);
        QPainter onPlan(&plan);
        drawPlan(onPlan, scene_, plan.size());
        onPlan.end();
        plan_ =
            QPixmap::fromImage(plan.scaled(size * scale, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        plan_.setDevicePixelRatio(scale);
    }
    QPainterPath corners;
    corners.addRoundedRect(QRect(QPoint(), size), measures.cornerRadius, measures.cornerRadius);
    painter.save();
    fillRounded(painter, QRect(QPoint(), size), measures.cornerRadius, plan_);
    painter.setClipPath(corners);
    drawLimits(painter, scene_, size);
    drawMovers(painter, scene_, size, 0);
    const MapTransform view(size, scene_.state.site.size);
    const bool left = scene_.state.drone.pos.x <= scene_.state.visitor->pos.x;
    const double aside = droneRadius * measures.droneScale + heightGap;
    drawCaption(painter, {value(&Settings::flightHeight).text, SB::dTitle,
                          view.map(scene_.state.drone.pos) + QPointF(left ? -aside : aside, 0),
                          (left ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter});
    painter.restore();
}

void LimitsSketch::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintMap(painter);
    QRectF row(0, Measure::limitsSketch.height() + Measure::limitsSketchWords, width(), Type::legend.line);
    for (const Line& line : words()) {
        drawRuns(painter, row, line);
        row.translate(0, Type::legend.line);
    }
}

} // namespace velmora

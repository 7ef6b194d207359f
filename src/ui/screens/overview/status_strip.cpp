#include "ui/screens/overview/status_strip.h"

#include "model/flight_limits.h"
#include "model/truncated.h"
#include "ui/blocks/accessibility.h"
#include "ui/blocks/art_image.h"
#include "ui/blocks/hairline.h"
#include "ui/blocks/status_dot.h"
#include "ui/look/paint.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"

#include <algorithm>

namespace velmora {

namespace {

constexpr double shares[] = {1.15, 0.85, 0.95, 1.05}; // of the width, per cell
constexpr double sumOfShares = 4;
constexpr double valueTop = 16, linesTop = 40; // pixels

QString destination(const Settings& settings) {
    const bool phone = !settings.ntfyTopic.empty();
    if (settings.notifyMac)
        return phone ? StatusStrip::tr("This Mac + phone") : StatusStrip::tr("This Mac");
    return phone ? StatusStrip::tr("Phone") : StatusStrip::tr("This window only");
}

} // namespace

/// A caption and a value, with lines of text or one dot per camera below.
class StatusStrip::Cell : public QWidget {
public:
    Cell(const QString& caption, QWidget* parent) : QWidget(parent), caption_(caption) {
        declareRole(this, QAccessible::StaticText);
    }

    void setContent(const QString& value, const QStringList& lines, const QColor& color = SB::muted,
                    const std::vector<QColor>& dots = {}) {
        if (value == value_ && lines == lines_ && color == color_ && dots == dots_)
            return;
        value_ = value;
        lines_ = lines;
        color_ = color;
        dots_ = dots;
        setAccessibleName((QStringList{caption_, value_} + lines_).join(QStringLiteral(", ")));
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const auto line = [&](double top, double height) { return QRectF(0, top, width(), height); };
        drawText(painter, line(0, Type::caption.line), caption_, Type::caption, SB::muted, Qt::AlignLeft);
        drawText(painter, line(valueTop, Type::statusValue.line), value_, Type::statusValue, SB::ink,
                 Qt::AlignVCenter);
        double top = linesTop;
        for (const QString& text : lines_) {
            drawText(painter, line(top, Type::label2.line), text, Type::label2, color_, Qt::AlignLeft);
            top += Type::label2.line;
        }
        double x = Measure::statusDotInRow / 2;
        for (const QColor& dot : dots_) {
            paintStatusDot(painter, {x, top + Type::label2.line / 2},
                           {.color = dot, .diameter = Measure::statusDotInRow});
            x += Measure::statusDotInRow + Measure::gap8;
        }
    }

private:
    QString caption_, value_;
    QStringList lines_;
    QColor color_;
    std::vector<QColor> dots_;
};

StatusStrip::StatusStrip(AppStore& store, QWidget* parent)
    : QWidget(parent),
      store_(store),
      picture_(new ArtImage(QStringLiteral("drone-render"), ArtImage::Mode::fit, 0, this)),
      cells_{new Cell(tr("Drone"), this), new Cell(tr("Cameras"), this), new Cell(tr("Wind"), this),
             new Cell(tr("Alerts"), this)} {
    setFixedHeight(1 + Measure::statusStripTop + Measure::statusStripCell);
}

void StatusStrip::refresh() {
    showAlerts();
    if (const LiveState* state = store_.knownState()) {
        showDrone(*state);
        showCameras(*state);
        showWind(*state);
    } else {
        for (Cell* cell : {cells_[0], cells_[1], cells_[2]})
            cell->setContent(QStringLiteral("—"), {});
    }
}

void StatusStrip::showDrone(const LiveState& state) {
    const bool onPad = state.phase == Phase::docked && isOverPad(state);
    cells_[0]->setContent(
        onPad ? tr("On its pad") : phaseWord(state.phase),
        {tr("%1% battery · signal %2%").arg(rounded(state.drone.battery), percent(state.drone.signal))});
}

void StatusStrip::showCameras(const LiveState& state) {
    const auto& cameras = state.site.cameras;
    std::vector<QColor> dots;
    for (const CameraInfo& camera : cameras)
        dots.push_back(camera.online ? SB::dot : SB::alert);
    const auto online = std::ranges::count_if(cameras, &CameraInfo::online);
    cells_[1]->setContent(tr("%1 of %2 online").arg(online).arg(cameras.size()), {}, SB::muted, dots);
}

void StatusStrip::showWind(const LiveState& state) {
    const double limit = store_.settings().maxWindKmh;
    const bool tooWindy = isTooWindy(state, store_.settings());
    cells_[2]->setContent(
        tr("%1 km/h").arg(rounded(state.windKmh)),
        {tooWindy ? tr("Too windy to fly") : tr("Fine to fly (limit %1 km/h)").arg(truncated(limit))},
        tooWindy ? SB::caution : SB::muted);
}

void StatusStrip::showAlerts() {
    cells_[3]->setContent(destination(store_.settings()),
                          {tr("Unknown faces trigger an alert"), tr("Every launch needs your yes")});
}

void StatusStrip::resizeEvent(QResizeEvent*) {
    constexpr int top = 1 + Measure::statusStripTop;
    const QSize picture =
        width() < Measure::narrowContent ? Measure::dronePictureNarrow : Measure::dronePicture;
    picture_->setGeometry(0, top, picture.width(), picture.height());
    double left = 0;
    for (std::size_t i = 0; i < cells_.size(); ++i) {
        const double share = width() * shares[i] / sumOfShares;
        const int indent = i == 0 ? picture.width() + Measure::gap16 : Measure::cellPadding;
        cells_[i]->setGeometry(static_cast<int>(left) + indent, top,
                               static_cast<int>(share) - indent - Measure::gap8, Measure::statusStripCell);
        left += share;
    }
}

void StatusStrip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintHairline(painter, {0, 0, width(), 1}, SB::rule);
    for (std::size_t i = 1; i < cells_.size(); ++i)
        paintHairline(
            painter,
            {cells_[i]->x() - Measure::cellPadding, 1 + Measure::statusStripTop, 1, Measure::statusStripCell},
            SB::rule);
}

} // namespace velmora

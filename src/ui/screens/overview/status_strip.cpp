#include "ui/screens/overview/status_strip.h"

#include "model/flight_limits.h"
#include "model/truncated.h"
#include "ui/blocks/accessibility.h"
#include "ui/blocks/art_image.h"
#include "ui/blocks/hairline.h"
#include "ui/blocks/status_dot.h"
#include "ui/blocks/tool_tip.h"
#include "ui/look/machine.h"
#include "ui/look/paint.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr double shares[] = {1.15, 0.85, 0.95, 1.05}; // of the width, per cell
constexpr double sumOfShares = 4;
constexpr double valueTop = 16, linesTop = 40; // pixels

QString destination(const Settings& settings) {
    const bool phone = !settings.ntfyTopic.empty();
    if (settings.notifyMac)
        return phone ? forThisMachine(StatusStrip::tr("This computer + phone"),
                                      StatusStrip::tr("This Mac + phone"))
                     : forThisMachine(StatusStrip::tr("This computer"), StatusStrip::tr("This Mac"));
    return phone ? StatusStrip::tr("Phone") : StatusStrip::tr("This window only");
}

using Line = std::vector<TextRun>;

Line plainLine(const QString& text, const QColor& color = SB::muted) {
    return {{text, Type::label2, color}};
}

} // namespace

/// A caption and a value, with one dot per camera and lines of text below.
class StatusStrip::Cell : public QWidget {
public:
    Cell(const QString& caption, QWidget* parent) : QWidget(parent), caption_(caption) {
        declareRole(this, QAccessible::StaticText);
    }

    void setContent(const QString& value, const std::vector<Line>& lines,
                    const std::vector<QColor>& dots = {}) {
        if (value == value_ && lines == lines_ && dots == dots_)
            return;
        value_ = value;
        lines_ = lines;
        dots_ = dots;
        neededWidth_ = std::max(neededWidth_, widthOfTexts()); // columns must not move with the values
        QStringList texts{caption_, value_};
        for (const Line& line : lines_)
            texts.append(textOf(line));
        setAccessibleName(texts.join(QStringLiteral(", ")));
        updateToolTip();
        update();
    }

    /// Width in pixels at which no text is cut off, of all texts so far.
    double neededWidth() const { return neededWidth_; }

    /// Shows the text in the tooltip and as the accessible description.
    void setDetails(const QString& details) {
        if (details == accessibleDescription())
            return;
        setAccessibleDescription(details);
        updateToolTip();
    }

protected:
    void resizeEvent(QResizeEvent*) override { updateToolTip(); }
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const auto line = [&](double top, double height) { return QRectF(0, top, width(), height); };
        drawText(painter, line(0, Type::caption.line), caption_, Type::caption, SB::muted, Qt::AlignLeft);
        drawText(painter, line(valueTop, Type::statusValue.line), value_, Type::statusValue, SB::ink,
                 Qt::AlignVCenter);
        double top = linesTop;
        double x = Measure::statusDotInRow / 2;
        for (const QColor& dot : dots_) {
            paintStatusDot(painter, {x, top + Type::label2.line / 2},
                           {.color = dot, .diameter = Measure::statusDotInRow});
            x += Measure::statusDotInRow + Measure::gap8;
        }
        if (!dots_.empty())
            top += Type::label2.line;
        for (const Line& text : lines_) {
            drawRuns(painter, line(top, Type::label2.line), text);
            top += Type::label2.line;
        }
    }

private:
    double widthOfTexts() const {
        double widest = std::max(textWidth(caption_, Type::caption), textWidth(value_, Type::statusValue));
        for (const Line& line : lines_)
            widest = std::max(widest, textWidth(line));
        return std::ceil(widest);
    }

    /// Shows the details, or else the texts if one of them is elided.
    void updateToolTip() {
        QStringList texts{value_};
        for (const Line& line : lines_)
            texts.append(textOf(line));
        const QString& details = accessibleDescription();
        setToolTipIfElided(*this, details.isEmpty() ? texts.join('\n') : details,
                           !details.isEmpty() || widthOfTexts() > width());
    }

    QString caption_, value_;
    std::vector<Line> lines_;
    std::vector<QColor> dots_;
    double neededWidth_ = 0;
};

StatusStrip::StatusStrip(AppStore& store, QWidget* parent)
    : QWidget(parent),
      store_(store),
      picture_(new ArtImage(QStringLiteral("drone-render"), ArtImage::Mode::trimmed, 0, this)),
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
        cells_[1]->setDetails({});
    }
    arrange();
}

void StatusStrip::showDrone(const LiveState& state) {
    const bool onPad = state.phase == Phase::docked && isOverPad(state);
    const TextRun battery{tr("%1% battery").arg(rounded(state.drone.battery)), Type::label2, SB::muted};
    const TextRun low{battery.text, Type::label2Strong, SB::caution};
    const TextRun signal{QStringLiteral(" · ") + tr("signal %1%").arg(percent(state.drone.signal)),
                         Type::label2, SB::muted};
    cells_[0]->setContent(onPad ? tr("On its pad") : phaseWord(state.phase),
                          {{isBatteryLow(state.drone, store_.settings()) ? low : battery, signal}});
}

void StatusStrip::showCameras(const LiveState& state) {
    const auto& cameras = state.site.cameras;
    std::vector<QColor> dots;
    QStringList offline;
    for (const CameraInfo& camera : cameras) {
        dots.push_back(camera.online ? SB::dot : SB::alert);
        if (!camera.online)
            offline.append(isolated(shownText(camera.name)));
    }
    std::vector<Line> lines;
    if (!offline.empty())
        lines = {{{offline.size() == 1 ? tr("%1 offline").arg(offline.front())
                                       : tr("%1 cameras offline").arg(offline.size()),
                   Type::label2Medium, SB::alert}}};
    const auto online = static_cast<qsizetype>(cameras.size()) - offline.size();
    cells_[1]->setContent(tr("%1 of %2 online").arg(online).arg(cameras.size()), lines, dots);
    cells_[1]->setDetails(offline.join(QStringLiteral(", ")));
}

void StatusStrip::showWind(const LiveState& state) {
    const double limit = store_.settings().maxWindKmh;
    const bool tooWindy = isTooWindy(state, store_.settings());
    cells_[2]->setContent(tr("%1 km/h").arg(rounded(state.windKmh)),
                          {tooWindy ? plainLine(tr("Too windy to fly"), SB::caution)
                                    : plainLine(tr("Fine to fly (limit %1 km/h)").arg(truncated(limit)))});
}

void StatusStrip::showAlerts() {
    cells_[3]->setContent(destination(store_.settings()), {plainLine(tr("Unknown faces trigger an alert")),
                                                           plainLine(tr("Every launch needs your yes"))});
}

void StatusStrip::resizeEvent(QResizeEvent*) {
    arrange();
}

/// Distance from the left edge of a column to the texts of its cell.
int StatusStrip::indentOf(std::size_t cell) const {
    return cell == 0 ? pictureRoom_ : Measure::cellPadding;
}

/// Room of a column beside its texts: the indent, and the gap to the next column.
int StatusStrip::marginsOf(std::size_t cell) const {
    return indentOf(cell) + (cell + 1 < cells_.size() ? Measure::gap8 : 0);
}

/// What a column has to spare; negative if texts of its cell are too long.
double StatusStrip::spareOf(std::size_t cell) const {
    return width() * shares[cell] / sumOfShares - marginsOf(cell) - cells_[cell]->neededWidth();
}

/// Each column has its share of the strip; those with room to spare give to those whose texts are too long.
std::array<double, 4> StatusStrip::columnWidths() const {
    double missing = 0, spare = 0;
    for (std::size_t i = 0; i < cells_.size(); ++i)
        (spareOf(i) < 0 ? missing : spare) += std::abs(spareOf(i));
    const double given = std::min(missing, spare);
    std::array<double, 4> widths{};
    for (std::size_t i = 0; i < cells_.size(); ++i) {
        widths[i] = width() * shares[i] / sumOfShares;
        if (given > 0)
            widths[i] -= given * spareOf(i) / (spareOf(i) < 0 ? missing : spare);
    }
    return widths;
}

/// The picture gives way to texts that need its room.
void StatusStrip::arrange() {
    constexpr int top = 1 + Measure::statusStripTop;
    const QSize picture =
        width() < Measure::narrowContent ? Measure::dronePictureNarrow : Measure::dronePicture;
    picture_->setGeometry(0, top + Measure::dronePictureTop, picture.width(), picture.height());
    pictureRoom_ = picture.width() + Measure::dronePictureGap;
    double spare = 0;
    for (std::size_t i = 0; i < cells_.size(); ++i)
        spare += spareOf(i);
    if (spare < 0)
        pictureRoom_ = 0;
    picture_->setVisible(pictureRoom_ > 0);
    double left = 0;
    const auto widths = columnWidths();
    for (std::size_t i = 0; i < cells_.size(); ++i) {
        cells_[i]->setGeometry(static_cast<int>(left) + indentOf(i), top,
                               static_cast<int>(widths[i]) - marginsOf(i), Measure::statusStripCell);
        left += widths[i];
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

#include "ui/charts/heat_painting.h"

#include "language/language.h"
#include "ui/charts/chart_measures.h"
#include "ui/charts/pattern_words.h"
#include "ui/look/paint.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"
#include "ui/map/map_painting.h"

#include <QImage>
#include <QPainterPath>

#include <algorithm>
#include <array>
#include <cmath>

namespace velmora {

namespace {

using namespace ChartMeasure;

/// The colour of a tone, from 0 for no visits to 1 for the most.
QColor colorOf(double tone) {
    struct Stop {
        double tone;
        QColor color;
    };
    static const std::array stops{Stop{0, SB::faded(SB::purple, 0)}, Stop{0.2, SB::faded(SB::purple, 0.5)},
                                  Stop{0.45, SB::faded(SB::mixed(SB::purple, SB::lilac, 0.4), 0.85)},
                                  Stop{0.7, SB::faded(SB::lilac, 0.95)}, Stop{1, QColor(Qt::white)}};
    const auto above = std::ranges::find_if(stops.begin() + 1, stops.end() - 1,
                                            [tone](const Stop& stop) { return tone <= stop.tone; });
    const Stop &to = *above, &from = *(above - 1);
    const double share = std::clamp((tone - from.tone) / (to.tone - from.tone), 0.0, 1.0);
    const auto mix = [share](double a, double b) { return static_cast<float>(a + (b - a) * share); };
    return QColor::fromRgbF(
        mix(from.color.redF(), to.color.redF()), mix(from.color.greenF(), to.color.greenF()),
        mix(from.color.blueF(), to.color.blueF()), mix(from.color.alphaF(), to.color.alphaF()));
}

/// The tone of one visit; among very many it is hardly seen.
double oneVisitTone(int mostVisits) {
    constexpr double tone = 0.4, distinct = 10;
    return tone * std::sqrt(std::min(1.0, distinct / std::max(mostVisits, 1)));
}

double toneOf(double visits, int mostVisits) {
    const double one = oneVisitTone(mostVisits);
    if (visits <= 1 || mostVisits <= 1)
        return one * std::min(visits, 1.0);
    return one + (1 - one) * (visits - 1) / (mostVisits - 1);
}

/// The colours of all tones, for pixels.
class Palette {
public:
    Palette() {
        for (std::size_t i = 0; i < colors_.size(); ++i)
            colors_[i] = qPremultiply(colorOf(static_cast<double>(i) / (tones - 1)).rgba());
    }
    QRgb at(double tone) const {
        return colors_[static_cast<std::size_t>(std::clamp(tone, 0.0, 1.0) * (tones - 1))];
    }

private:
    static constexpr std::size_t tones = 1024;
    std::array<QRgb, tones> colors_{};
};

QImage heatPicture(const WalkHeat& heat, P site, QSize size) {
    static const Palette palette;
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    const double metres = site.x / size.width();
    for (int y = 0; y < size.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y)); // NOLINT(*-reinterpret-cast)
        for (int x = 0; x < size.width(); ++x) {
            const double visits = heat.at({(x + 0.5) * metres, (y + 0.5) * metres});
            line[x] = palette.at(toneOf(visits, heat.mostVisits));
        }
    }
    return picture;
}

} // namespace

void drawHeatMap(QPainter& painter, const MapScene& scene, const WalkHeat& heat, QSizeF canvas,
                 double scale) {
    const QRectF plan = MapTransform(canvas, scene.state.site.size).plan();
    drawBackdrop(painter, scene, canvas);
    if (heat.mostVisits > 0) {
        const QSize size = (plan.size() * scale).toSize().expandedTo({1, 1});
        painter.drawImage(plan, heatPicture(heat, scene.state.site.size, size));
    }
    drawLandmarks(painter, scene, canvas);
}

QString heatKeyWords(int mostVisits) {
    return mostVisits == 0 ? Words::tr("No visitor was seen walking")
           : mostVisits == 1
               ? Words::tr("Where they walked: one visit")
               : Words::tr("Where they walked: from one visit to %1").arg(visitsInWords(mostVisits));
}

void drawHeatKey(QPainter& painter, const QRectF& rect, int mostVisits) {
    drawText(painter, rect, Words::tr("Where they walked"), Type::legend, SB::muted, Qt::AlignVCenter);
    if (mostVisits == 0)
        return;
    const QString most = visitsInWords(mostVisits), one = visitsInWords(1);
    QRectF bar({}, QSizeF(heatKey));
    double right = rect.right();
    if (mostVisits > 1) {
        drawText(painter, rect, most, Type::legend, SB::muted, Qt::AlignVCenter | Qt::AlignRight);
        right -= textWidth(most, Type::legend) + heatKeyGap;
    }
    bar.moveTopRight({right, rect.center().y() - bar.height() / 2});
    const double first = oneVisitTone(mostVisits);
    QLinearGradient colors(bar.topLeft(), bar.topRight());
    constexpr int steps = 16;
    for (int step = 0; step <= steps; ++step) {
        const double share = double(step) / steps;
        colors.setColorAt(share, colorOf(first + (1 - first) * (mostVisits > 1 ? share : 0)));
    }
    fillRounded(painter, bar, bar.height() / 2, SB::navy3);
    fillRounded(painter, bar, bar.height() / 2, colors);
    const QRectF before(rect.left(), rect.top(), bar.left() - heatKeyGap - rect.left(), rect.height());
    drawText(painter, before, one, Type::legend, SB::muted, Qt::AlignVCenter | Qt::AlignRight);
}

} // namespace velmora

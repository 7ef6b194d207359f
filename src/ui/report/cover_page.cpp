#include "ui/report/cover_page.h"

#include "language/language.h"
#include "ui/charts/heat_painting.h"
#include "ui/charts/pattern_figures.h"
#include "ui/charts/pattern_words.h"
#include "ui/charts/visit_matrix.h"
#include "ui/look/measures.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"
#include "ui/map/map_painting.h"
#include "ui/report/report_words.h"

#include <QPainterPath>

#include <algorithm>

namespace velmora {

namespace {

constexpr double keyRow = 16; // pixels at 96 dpi, as everything here
constexpr double heatScale = 2;
constexpr double figureRow = 96;
constexpr double countRow = 28, countRowLeast = 20;
constexpr double aboveLine = 13, belowLine = 14;

class Cover {
public:
    Cover(ReportPages& pages, const ReportSetting& setting, const VisitPatterns& patterns, const QImage& map,
          int mostVisits)
        : pages_(pages), setting_(setting), patterns_(patterns), map_(map), mostVisits_(mostVisits) {}

    void layOut(const QString& selection) {
        pages_.begin(
            {Words::tr("Report of the visits"),
             Words::tr("Site: %1 · %2", "name of the site, who made the report")
                 .arg(elided(shownText(setting_.site.name), ReportType::foot, 200), madeBy(setting_.madeAt)),
             reportSource()});
        double y = title(selection);
        if (patterns_.visits() < VisitPatterns::fewest)
            y = pages_.paragraph({pages_.left(), y, pages_.width(), 0},
                                 Words::tr("Patterns appear after three visits."), Type::log, SB::body);
        else
            y = matrix(line(std::max(map(y), figures(y))));
        counts(line(y));
    }

private:
    double line(double y) {
        pages_.hairline(y + aboveLine);
        return y + aboveLine + belowLine;
    }

    void heading(const QRectF& row, const QString& text) {
        pages_.line(row, text, Type::bodyStrong, SB::ink);
    }

    double title(const QString& selection) {
        const QRectF row(pages_.left(), ReportPages::top, pages_.width(), 0);
        const Sentence sentence = patternSentence(patterns_, VisitSpan::unnamed);
        double y = pages_.paragraph(row, sentence.lead + sentence.emphasis + sentence.tail, Type::recordTitle,
                                    SB::ink, 2);
        const auto add = [&](const QString& text) {
            y = pages_.paragraph({row.left(), y + 1, row.width(), 0}, text, Type::body, SB::body, 2) - 1;
        };
        if (patterns_.first()) {
            const QString first = fullDate(*patterns_.first()), last = fullDate(*patterns_.last());
            add(first == last ? first : Words::tr("%1 to %2", "date, date").arg(first, last));
        }
        if (!selection.isEmpty())
            add(Words::tr("Only these visits: %1", "names of filters").arg(selection));
        return y + Measure::gap16;
    }

    double map(double y) {
        const QRectF rect(QPointF(pages_.left(), y), reportMapSize(setting_.site));
        if (QPainter* painter = pages_.painter()) {
            painter->save();
            clipRounded(*painter, rect);
            painter->drawImage(rect, map_);
            painter->translate(rect.topLeft());
            drawLandmarks(*painter, reportScene(setting_, true), rect.size());
            painter->restore();
            drawHeatKey(*painter, {rect.left(), rect.bottom() + Measure::gap4, reportMap.width(), keyRow},
                        mostVisits_);
        }
        return rect.bottom() + Measure::gap4 + keyRow;
    }

    double figures(double y) {
        const double x = pages_.left() + reportMap.width() + reportColumnGap;
        double bottom = y;
        for (const PatternFigure& figure : patternFigures(patterns_)) {
            const QRectF rect(x, y, pages_.right() - x, figureRow);
            bottom = drawFact(pages_, rect, figure.name, figure.value, figure.unit);
            bottom = pages_.paragraph({x, bottom + Measure::reasonGap, rect.width(), 0}, figure.reason,
                                      Type::legend, SB::muted, 2);
            y += figureRow;
        }
        return bottom;
    }

    double matrix(double y) {
        const QRectF row(pages_.left(), y, pages_.width(), Type::bodyStrong.line);
        heading(row, Words::tr("When they came"));
        pages_.line(row, groupWords(patterns_), Type::label2, SB::purple, Qt::AlignRight);
        const MatrixForm form = MatrixForm::full(static_cast<int>(row.width()));
        const double top = row.bottom() + Measure::gap8;
        if (QPainter* painter = pages_.painter()) {
            painter->save();
            painter->translate(row.left(), top);
            drawVisitMatrix(*painter, VisitTimes::of(patterns_), form);
            painter->restore();
        }
        return top + form.size().height();
    }

    void counts(double y) {
        const double width = (pages_.width() - Measure::gap32) / 2;
        const QRectF left(pages_.left(), y, width, Type::bodyStrong.line);
        const QRectF right = left.translated(width + Measure::gap32, 0);
        heading(left, Words::tr("By camera"));
        heading(right, Words::tr("How they ended"));
        pages_.line(right, Words::tr("%1 of %2 flown").arg(patterns_.flown()).arg(patterns_.visits()),
                    Type::label2, SB::muted, Qt::AlignRight);
        rows(left.translated(0, left.height() + Measure::gap4), cameraRows(patterns_));
        rows(right.translated(0, right.height() + Measure::gap4), outcomeRows(patterns_));
    }

    /// As many as the page has room for.
    void rows(QRectF row, const std::vector<CountRow>& all) {
        QPainter* painter = pages_.painter();
        if (!painter || all.empty())
            return;
        const double room = pages_.bottom() - row.top();
        const auto fitting = static_cast<std::size_t>(std::max(room / countRowLeast, 0.0));
        const std::size_t shown = std::min(all.size(), fitting);
        row.setHeight(
            std::clamp(room / static_cast<double>(std::max<std::size_t>(shown, 1)), countRowLeast, countRow));
        const double names = countNameWidth(all, row.width());
        const int most = std::ranges::max(all, {}, &CountRow::visits).visits;
        for (std::size_t i = 0; i < shown; ++i, row.translate(0, row.height()))
            drawCountRow(*painter, row, all[i], most, names, SB::body);
    }

    ReportPages& pages_;
    const ReportSetting& setting_;
    const VisitPatterns& patterns_;
    const QImage& map_;
    int mostVisits_;
};

} // namespace

void CoverPage::add(const MissionRecord& record) {
    patterns_.add(record);
    walked_.add(record);
}

void CoverPage::prepare(const ReportSetting& setting) {
    const QSizeF size = reportMapSize(setting.site);
    const WalkHeat heat = walked_.heat();
    mostVisits_ = heat.mostVisits;
    map_ = QImage((size * heatScale).toSize(), QImage::Format_RGB32);
    map_.setDevicePixelRatio(heatScale);
    map_.fill(SB::navy);
    QPainter painter(&map_);
    drawHeatMap(painter, reportScene(setting, false), heat, size, heatScale);
}

void CoverPage::layOut(ReportPages& pages, const ReportSetting& setting, const QString& selection) const {
    Cover(pages, setting, patterns_, map_, mostVisits_).layOut(selection);
}

} // namespace velmora

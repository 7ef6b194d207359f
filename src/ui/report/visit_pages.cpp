#include "ui/report/visit_pages.h"

#include "language/language.h"
#include "model/mission_evidence.h"
#include "ui/charts/boundary_chart.h"
#include "ui/charts/response_parts.h"
#include "ui/look/measures.h"
#include "ui/look/paint.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"
#include "ui/map/map_painting.h"
#include "ui/report/report_words.h"

#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr double pictureHeight = 150;        // pixels at 96 dpi, as everything here
constexpr double captionGap = 7;             // below a picture
constexpr double lineAbove = 13, below = 14; // around a hairline between sections
constexpr double factRow = 58;
constexpr double chartHeight = 60;
constexpr double afterX = 92, eventX = 164; // columns of the log
constexpr double leastRow = 22, rowPadding = 4;
constexpr double leastRowPadding = -2; // the letters keep apart: a line is higher than they are
constexpr double leastPart = 30;       // between two parts of the response
constexpr int mostEventLines = 12;

using Frame = ReportPages::Frame;

class VisitPages {
public:
    VisitPages(ReportPages& pages, ReportPictures& pictures, const ReportSetting& setting,
               const ReportVisit& visit)
        : pages_(pages),
          pictures_(pictures),
          setting_(setting),
          visit_(visit),
          record_(*visit.record),
          flown_(flew(record_.outcome)) {}

    void layOut() {
        pages_.begin(frame());
        double y = title();
        y = std::max(map(y), facts(picture(y))) + lineAbove;
        y = answer(line(y)) + below;
        y = response(line(y)) + Measure::gap16;
        log(y);
    }

private:
    Frame frame() const {
        return {Words::tr("Visit report"),
                Words::tr("Record %1 · Site: %2 · %3", "record id, name of the site, who made the report")
                    .arg(shortened(record_.id), shortened(setting_.site.name), madeBy(setting_.madeAt)),
                sourceWords()};
    }

    QString sourceWords() const {
        if (pictures_.camera(toQString(record_.snapshot)).isNull())
            return reportSource();
        return reportSource() + ' ' + Words::tr("The picture is shown whole, as it was received.");
    }

    /// A text of the record that leaves room for the others in its line.
    static QString shortened(const std::string& text) {
        constexpr double most = 140;
        return isolated(elided(shownText(text), ReportType::foot, most));
    }

    double line(double y) {
        pages_.hairline(y);
        return y + below;
    }

    double heading(double x, double y, const QString& text) {
        pages_.line({x, y, pages_.right() - x, Type::bodyStrong.line}, text, Type::bodyStrong, SB::ink);
        return y + Type::bodyStrong.line;
    }

    double title() {
        QRectF row(pages_.left(), ReportPages::top, pages_.width(), Type::recordTitle.line);
        pages_.line(row, shownText(rawValue(record_.outcome)), Type::recordTitle, SB::ink);
        double y = cameraAndTimes({row.left(), row.bottom() + 1, row.width(), Type::body.line});
        if (record_.demo)
            y = pages_.paragraph({row.left(), y, row.width(), 0},
                                 Words::tr("A rehearsed visit of the demo: nobody came, and nothing flew."),
                                 Type::bodyStrong, SB::ink, 2);
        return y + Measure::gap16 - 1;
    }

    /// Texts of their own, because a name from right to left would change the signs in the times.
    double cameraAndTimes(QRectF row) {
        const QString camera = cameraWords(record_) + ',', times = visitTimes(record_);
        pages_.line(row, camera, Type::body, SB::body);
        const double beside = textWidth(camera + ' ', Type::body);
        if (beside + textWidth(times, Type::body) > row.width())
            row.translate(0, row.height());
        else
            row.setLeft(row.left() + beside);
        pages_.line(row, times, Type::body, SB::body);
        return row.bottom();
    }

    double map(double y) {
        const QRectF rect(QPointF(pages_.left(), y), reportMapSize(setting_.site));
        if (QPainter* painter = pages_.painter())
            paintMap(*painter, rect);
        return pages_.paragraph({rect.left(), rect.bottom() + captionGap, reportMap.width(), 0},
                                mapKey(record_, setting_.settings), ReportType::caption, SB::muted);
    }

    void paintMap(QPainter& painter, const QRectF& rect) {
        MapScene scene = reportScene(setting_, true);
        scene.replay = Replay{visit_.record, progressAt(record_, durationOf(record_))};
        painter.save();
        clipRounded(painter, rect);
        painter.drawImage(rect, pictures_.grounds(reportScene(setting_, false), rect.size()));
        painter.translate(rect.topLeft());
        drawLandmarks(painter, scene, rect.size());
        drawPaths(painter, scene, rect.size());
        drawMovers(painter, scene, rect.size(), 0);
        painter.restore();
    }

    double pictureX() const { return pages_.left() + reportMap.width() + reportColumnGap; }
    double pictureWidth() const { return pages_.right() - pictureX(); }

    double picture(double y) {
        const QImage& picture = pictures_.camera(toQString(record_.snapshot));
        if (picture.isNull())
            return pages_.paragraph({pictureX(), y, pictureWidth(), 0},
                                    Words::tr("There is no picture of this alert."), ReportType::caption,
                                    SB::muted);
        const QSizeF box(pictureWidth(), std::max(pictureHeight, pictureWidth() * 9 / 16));
        const QRectF rect({pictureX(), y}, QSizeF(picture.size()).scaled(box, Qt::KeepAspectRatio));
        if (QPainter* painter = pages_.painter()) {
            painter->save();
            clipRounded(*painter, rect);
            painter->drawImage(rect, picture);
            painter->restore();
        }
        return pages_.paragraph({pictureX(), rect.bottom() + captionGap, pictureWidth(), 0},
                                Words::tr("Alert picture, %1, %2", "camera, time")
                                    .arg(cameraWords(record_), timeOfDay(record_.start)),
                                ReportType::caption, SB::muted, 2);
    }

    struct Fact {
        QString name, value, unit;
    };

    std::vector<Fact> factsOf() const {
        const Seconds length{std::round(durationOf(record_))};
        std::vector<Fact> facts{{Words::tr("Duration"), clockTime(length), Words::tr("min")}};
        if (flown_) {
            facts.push_back({Words::tr("Furthest out"), rounded(record_.maxDistanceFromPad), Words::tr("m")});
            facts.push_back({Words::tr("Battery used"), rounded(record_.batteryUsed), Words::tr("%")});
        }
        facts.push_back({Words::tr("Match"), percent(record_.confidence), Words::tr("% unknown")});
        return facts;
    }

    double facts(double y) {
        const double width = pictureWidth() / 2;
        double top = y + Measure::gap16 - 1;
        int column = 0;
        double bottom = top;
        for (const Fact& fact : factsOf()) {
            bottom = drawFact(pages_, {pictureX() + column * width, top, width - Measure::gap8, factRow},
                              fact.name, fact.value, fact.unit);
            column = 1 - column;
            if (column == 0)
                top += factRow;
        }
        return bottom;
    }

    double halfWidth() const { return (pages_.width() - Measure::gap32) / 2; }

    /// How it was answered and the flight at the left, the boundary at the right.
    double answer(double y) {
        const auto boundary = boundaryChartOf(record_, setting_.site, setting_.settings.boundaryBuffer);
        const double column = boundary ? halfWidth() : pages_.width();
        double left = section({pages_.left(), y, column, 0}, Words::tr("How it was answered"),
                              answerSentences(record_, visit_.answer));
        if (const QString flight = flightSentences(record_); !flight.isEmpty())
            left = section({pages_.left(), left + Measure::gap8, column, 0}, Words::tr("The flight"), flight);
        if (!boundary)
            return left;
        const QRectF beside(pages_.right() - column, y, column, 0);
        const double right = section(beside, Words::tr("Boundary"),
                                     boundarySentence(boundary->profile.evidence, boundary->buffer));
        return std::max(left, chart(right, beside, *boundary));
    }

    double section(const QRectF& column, const QString& name, const QString& text) {
        const double y = heading(column.left(), column.top(), name) + Measure::gap4;
        return pages_.paragraph({column.left(), y, column.width(), 0}, text, Type::log, SB::body);
    }

    double chart(double y, const QRectF& column, const BoundaryChart& boundary) {
        constexpr double gapAbove = 10, gapBelow = 6;
        const QRectF caption(column.left(), y + gapAbove, column.width(), Type::caption.line);
        pages_.line(caption, Words::tr("Metres inside the boundary"), Type::caption, SB::muted);
        const QRectF plot(column.left(), caption.bottom() + gapBelow, column.width(), chartHeight);
        if (QPainter* painter = pages_.painter())
            paintBoundaryChart(*painter, plot, boundary, ReportType::caption);
        return plot.bottom() + Measure::gap4 + ReportType::caption.line;
    }

    double response(double y) {
        const QString length = duration(Seconds{durationOf(record_)});
        pages_.line({pages_.left(), y, pages_.width(), Type::body.line},
                    flown_ ? Words::tr("%1 from seen to landed").arg(length)
                           : Words::tr("%1 from seen to the end").arg(length),
                    Type::body, SB::body, Qt::AlignRight);
        y = heading(pages_.left(), y, Words::tr("Response")) + Measure::gap8;
        const auto parts = responseParts(record_);
        const QRectF bar(pages_.left(), y, pages_.width(), Measure::responseBar);
        if (QPainter* painter = pages_.painter())
            paintResponseBar(*painter, bar, parts);
        return responseWords(bar.bottom() + Measure::gap8, parts);
    }

    /// The parts side by side over the whole width, or in several rows where they need them.
    double responseWords(double y, const std::vector<ResponsePart>& parts) {
        constexpr double indent = 13;
        std::vector<double> widths;
        for (const ResponsePart& part : parts)
            widths.push_back(indent + std::max(textWidth(part.name, Type::legend),
                                               textWidth(duration(part.length), Type::legendStrong)));
        double sum = 0;
        for (const double width : widths)
            sum += width;
        const double gaps = std::max(static_cast<double>(parts.size()) - 1, 1.0);
        const double gap = std::clamp((pages_.width() - sum) / gaps, leastPart / 2, leastPart);
        constexpr double height = 2 * Type::legend.line;
        double x = pages_.left();
        for (std::size_t i = 0; i < parts.size(); ++i) {
            if (x > pages_.left() && x + widths[i] > pages_.right() + 1) {
                x = pages_.left();
                y += height + Measure::gap4;
            }
            paintPart({x, y, widths[i], height}, indent, parts[i]);
            x += widths[i] + gap;
        }
        return y + height;
    }

    void paintPart(const QRectF& rect, double indent, const ResponsePart& part) {
        if (QPainter* painter = pages_.painter())
            fillDisc(*painter, {rect.left() + Measure::activityDotX, rect.top() + Type::legend.line / 2},
                     Measure::statusDotInRow, part.color);
        const QRectF name = rect.adjusted(indent, 0, 1, 0);
        pages_.line(name, part.name, Type::legend, SB::body);
        pages_.line(name.translated(0, Type::legend.line), duration(part.length), Type::legendStrong,
                    SB::ink);
    }

    double tableHead(double y, const QString& name) {
        y = heading(pages_.left(), y, name) + Measure::metricGap;
        const auto column = [&](double x, const QString& text) {
            pages_.line({pages_.left() + x, y, eventX, Type::caption.line}, text, Type::caption, SB::muted);
        };
        column(0, Words::tr("Time"));
        column(afterX, Words::tr("After", "column of times since the alert"));
        column(eventX, Words::tr("Event"));
        y += Type::caption.line + Measure::gap4 + 1;
        pages_.hairline(y);
        return y;
    }

    /// The heading moves to the next page unless two rows fit below it.
    void log(double y) {
        if (record_.notices.empty())
            return;
        constexpr double head = Type::bodyStrong.line + Measure::metricGap + Type::caption.line + 5;
        if (y + below + head + 2 * leastRow > pages_.bottom()) {
            pages_.next();
            y = ReportPages::top;
        } else {
            y = line(y);
        }
        y = tableHead(y, Words::tr("What happened"));
        const double padding = paddingFor(pages_.bottom() - y);
        for (const Notice& notice : record_.notices) {
            const QStringList lines = eventLines(notice);
            const double height = static_cast<double>(lines.size()) * Type::label2.line + padding;
            if (y + height > pages_.bottom()) {
                pages_.next();
                y = ReportPages::top;
                pages_.line({pages_.left(), y, pages_.width(), Type::bodyStrong.line}, visitTimes(record_),
                            Type::label2, SB::muted, Qt::AlignRight | Qt::AlignVCenter);
                y = tableHead(y, Words::tr("What happened, continued"));
            }
            row(y + padding / 2, notice, lines);
            y += height;
            pages_.hairline(y);
        }
    }

    QStringList eventLines(const Notice& notice) const {
        return brokenIntoLines(shownText(notice.text), Type::label2, pages_.width() - eventX, mostEventLines);
    }

    /// Closer rows where that saves a page.
    double paddingFor(double room) const {
        const auto rows = static_cast<double>(record_.notices.size());
        if (rows * (Type::label2.line + leastRowPadding) > room)
            return rowPadding;
        double lines = 0;
        for (const Notice& notice : record_.notices)
            lines += static_cast<double>(eventLines(notice).size());
        constexpr double rounding = 0.01;
        const double fitting = (room - lines * Type::label2.line) / rows - rounding;
        return fitting < leastRowPadding ? rowPadding : std::min(fitting, rowPadding);
    }

    void row(double y, const Notice& notice, const QStringList& lines) {
        QRectF cell(pages_.left(), y, afterX - Measure::gap8, Type::label2.line);
        pages_.line(cell, timeOfDay(notice.time), Type::label2, SB::ink);
        const Seconds after{std::max((notice.time - record_.start).count(), 0.0)};
        cell.translate(afterX, 0);
        cell.setWidth(eventX - afterX - Measure::gap8);
        pages_.line(cell, after.count() < 1 ? clockTime(after) : '+' + clockTime(after), Type::label2,
                    SB::muted);
        cell = QRectF(pages_.left() + eventX, cell.top(), pages_.width() - eventX, Type::label2.line);
        for (const QString& text : lines) {
            pages_.line(cell, text, Type::label2, SB::ink);
            cell.translate(0, Type::label2.line);
        }
    }

    ReportPages& pages_;
    ReportPictures& pictures_;
    const ReportSetting& setting_;
    const ReportVisit& visit_;
    const MissionRecord& record_;
    bool flown_;
};

} // namespace

QSizeF reportMapSize(const Site& site) {
    return QSizeF(site.size.x, site.size.y).scaled(reportMap, Qt::KeepAspectRatio);
}

MapScene reportScene(const ReportSetting& setting, bool captions) {
    MapScene scene;
    scene.state.site = setting.site;
    scene.settings = setting.settings;
    scene.measures.captions = captions;
    return scene;
}

void clipRounded(QPainter& painter, const QRectF& rect) {
    QPainterPath corners;
    corners.addRoundedRect(rect, Measure::thumbnailRadius, Measure::thumbnailRadius);
    painter.setClipPath(corners);
}

QString reportSource() {
    return Words::tr("Paths, distances and times are those the drone and the cameras reported.");
}

double drawFact(ReportPages& pages, QRectF rect, const QString& name, const QString& value,
                const QString& unit) {
    pages.line(rect, name, Type::caption, SB::muted);
    rect.setTop(rect.top() + Type::caption.line + Measure::metricGap);
    pages.line(rect, value, ReportType::fact, SB::ink);
    const double baseline = baselineOf(ReportType::fact) - baselineOf(Type::unit);
    pages.line(rect.adjusted(textWidth(value, ReportType::fact) + Measure::gap4, baseline, 0, 0), unit,
               Type::unit, SB::muted);
    return rect.top() + ReportType::fact.line;
}

void layOutVisit(ReportPages& pages, ReportPictures& pictures, const ReportSetting& setting,
                 const ReportVisit& visit) {
    VisitPages(pages, pictures, setting, visit).layOut();
}

} // namespace velmora

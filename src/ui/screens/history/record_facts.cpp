#include "ui/screens/history/record_facts.h"

#include "model/mission_evidence.h"
#include "ui/blocks/art_image.h"
#include "ui/blocks/hairline.h"
#include "ui/blocks/layouts.h"
#include "ui/blocks/metric.h"
#include "ui/blocks/text.h"
#include "ui/charts/boundary_chart.h"
#include "ui/look/answer_words.h"
#include "ui/look/measures.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"
#include "ui/screens/history/response_times.h"
#include "ui/screens/log_list.h"

#include <QGridLayout>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace velmora {

namespace {

const QString absent = QStringLiteral("—");

Metric* newMetric(const QString& label, QWidget* parent) {
    auto* metric = new Metric(label, Metric::Size::regular, false, parent);
    metric->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    return metric;
}

/// Replaces the widget's layout; the widgets in it stay.
template <class Layout>
Layout* newLayout(QWidget* parent, int spacing = 0) {
    delete parent->layout();
    return bareLayout<Layout>(parent, spacing);
}

/// Adds a hairline with these distances to what is above and below it.
void addLine(QVBoxLayout& column, Hairline* line, int above, int below) {
    column.addSpacing(above);
    column.addWidget(line);
    column.addSpacing(below - line->minimumHeight());
}

} // namespace

RecordFacts::RecordFacts(QWidget* replay, QWidget* parent)
    : QWidget(parent),
      replay_(replay),
      metrics_(new QWidget(this)),
      duration_(newMetric(tr("Duration"), metrics_)),
      furthest_(newMetric(tr("Furthest out"), metrics_)),
      battery_(newMetric(tr("Battery used"), metrics_)),
      match_(newMetric(tr("Match"), metrics_)),
      response_(new ResponseTimes(this)),
      answer_(new Text({}, Type::log, SB::body, this)),
      responseSection_(buildResponse()),
      log_(new LogList(LogList::Interaction::clickable, this)),
      logSection_(section(tr("What happened"), log_, Measure::gap8)),
      boundary_(new Text({}, Type::log, SB::body, this)),
      chart_(new BoundaryChartView(this)),
      boundarySection_(boundarySection()),
      visitor_(new QWidget(this)),
      picture_(new ArtImage({}, ArtImage::Mode::fill, Measure::thumbnailRadius, visitor_)),
      identity_(new Text({}, Type::label2, SB::muted, visitor_)),
      times_(new Text({}, Type::label2, SB::muted, visitor_)) {
    replay_->setParent(this);
    for (QWidget* block : std::initializer_list<QWidget*>{responseSection_, logSection_, boundarySection_})
        block->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // the columns decide the width
    for (Hairline*& line : lines_)
        line = new Hairline(this, Hairline::Tone::between);
    connect(log_, &LogList::activated, this,
            [this](const Notice& notice) { emit momentRequested((notice.time - start_).count()); });
    setTwoColumns(false);
}

QWidget* RecordFacts::section(const QString& heading, QWidget* content, int gap) {
    auto* section = new QWidget(this);
    auto* column = bareLayout<QVBoxLayout>(section, gap);
    column->addWidget(new Text(heading, Type::groupHeading, SB::ink, section));
    column->addWidget(content);
    return section;
}

QWidget* RecordFacts::buildResponse() {
    auto* section = new QWidget(this);
    auto* column = bareLayout<QVBoxLayout>(section, Measure::gap4);
    column->addWidget(response_);
    column->addWidget(answer_);
    return section;
}

QWidget* RecordFacts::boundarySection() {
    auto* content = new QWidget(this);
    auto* column = bareLayout<QVBoxLayout>(content, Measure::gap16);
    column->addWidget(boundary_);
    column->addWidget(chart_);
    return section(tr("Boundary"), content, Measure::gap4);
}

/// In one column there is no room for it.
void RecordFacts::showChart() {
    chart_->setVisible(hasChart_ && twoColumns_ == true);
}

void RecordFacts::setTwoColumns(bool two) {
    if (twoColumns_ == two)
        return;
    twoColumns_ = two;
    response_->setChartShown(two);
    showChart();
    for (std::size_t i = 1; i < lines_.size(); ++i)
        lines_[i]->setVisible(two);
    layoutMetrics(two ? 2 : 4);
    layoutVisitor(two);
    if (two)
        layoutTwoColumns();
    else
        layoutOneColumn();
}

void RecordFacts::layoutMetrics(int columns) {
    auto* grid = newLayout<QGridLayout>(metrics_);
    grid->setVerticalSpacing(Measure::gap24);
    int index = 0;
    for (Metric* metric : {duration_, furthest_, battery_, match_}) {
        grid->setColumnStretch(index % columns, 1);
        grid->addWidget(metric, index / columns, index % columns);
        ++index;
    }
}

void RecordFacts::layoutVisitor(bool wide) {
    const QSize size = wide ? Measure::alertPictureWide : Measure::alertPicture;
    visitor_->setFixedWidth(size.width());
    picture_->setFixedSize(size);
    picture_->setRadius(wide ? Measure::cardRadius : Measure::thumbnailRadius);
    auto* column = newLayout<QVBoxLayout>(visitor_);
    column->addWidget(picture_);
    column->addSpacing(wide ? Measure::gap8 : Measure::gap4);
    column->addWidget(identity_);
    column->addSpacing(wide ? 0 : Measure::gap4);
    column->addWidget(times_);
}

void RecordFacts::layoutOneColumn() {
    auto* texts = new QVBoxLayout;
    texts->setSpacing(Measure::gap20);
    texts->addWidget(logSection_);
    texts->addSpacing(Measure::gap4);
    texts->addWidget(responseSection_);
    texts->addWidget(boundarySection_);
    texts->addStretch(1);
    auto* row = new QHBoxLayout;
    row->setSpacing(Measure::gap24);
    row->addLayout(texts, 1);
    row->addWidget(visitor_, 0, Qt::AlignTop);
    auto* column = newLayout<QVBoxLayout>(this, Measure::gap20);
    column->addWidget(replay_);
    column->addWidget(metrics_);
    column->addWidget(lines_[0]);
    column->addLayout(row);
}

void RecordFacts::layoutTwoColumns() {
    auto* visit = new QHBoxLayout;
    visit->setSpacing(Measure::gap32);
    auto* picture = new QVBoxLayout;
    picture->addSpacing(Measure::gap4); // level with the capitals of the heading beside it
    picture->addWidget(visitor_);
    visit->addLayout(picture);
    visit->addWidget(boundarySection_, 1, Qt::AlignTop);
    auto* left = new QVBoxLayout;
    left->setSpacing(0);
    left->addWidget(replay_);
    addLine(*left, lines_[0], Measure::gap24, Measure::gap20);
    left->addLayout(visit);
    left->addStretch(1);
    auto* side = new QVBoxLayout;
    side->setSpacing(0);
    side->addStrut(Measure::detailSecondColumn);
    side->addWidget(metrics_);
    addLine(*side, lines_[1], Measure::gap24, Measure::gap20);
    side->addWidget(responseSection_);
    addLine(*side, lines_[2], Measure::gap20, Measure::gap20);
    side->addWidget(logSection_);
    side->addStretch(1);
    auto* columns = newLayout<QHBoxLayout>(this);
    columns->addLayout(left, 1);
    columns->addSpacing(Measure::gutter);
    columns->addLayout(side);
}

void RecordFacts::setRecord(const MissionRecord& record) {
    start_ = record.start;
    showMetrics(record);
    log_->setNotices(record.notices);
    response_->setRecord(record);
    showVisitor(record);
}

void RecordFacts::setMoment(const MissionRecord& record, const std::optional<double>& seconds) {
    const auto happened = [&](const Notice& notice) {
        return seconds && (notice.time - record.start).count() <= *seconds;
    };
    const auto last = std::find_if(record.notices.rbegin(), record.notices.rend(), happened);
    const auto count = static_cast<std::size_t>(record.notices.rend() - last);
    log_->setCurrent(count > 0 ? std::optional(count - 1) : std::nullopt);
    chart_->setMoment(seconds);
}

void RecordFacts::showMetrics(const MissionRecord& record) {
    const Seconds length{durationOf(record)};
    duration_->setValue(clockTime(Seconds{std::round(length.count())}), tr("min"));
    if (flew(record.outcome)) {
        furthest_->setValue(rounded(record.maxDistanceFromPad), tr("m"));
        battery_->setValue(rounded(record.batteryUsed), tr("%"));
    } else {
        furthest_->setValue(absent, {});
        battery_->setValue(absent, {});
    }
    match_->setValue(percent(record.confidence), tr("% unknown"));
}

void RecordFacts::setAnswer(const MissionRecord& record, const std::optional<GivenAnswer>& answer) {
    answer_->setText(answer ? answerText(*answer, record.start) : QString());
    answer_->setVisible(answer.has_value());
}

void RecordFacts::setBoundary(const MissionRecord& record, const Site& site, const Settings& settings) {
    auto chart = boundaryChartOf(record, site, settings.boundaryBuffer);
    hasChart_ = chart.has_value();
    boundary_->setText(chart ? boundarySentence(chart->profile.evidence, chart->buffer)
                             : tr("The drone did not fly."));
    if (chart)
        chart_->setChart(std::move(*chart));
    showChart();
}

void RecordFacts::showVisitor(const MissionRecord& record) {
    picture_->setName(toQString(record.snapshot));
    picture_->setDescription(tr("Picture of %1").arg(isolated(shownText(record.cameraName))));
    identity_->setText(personName(record.label) + QStringLiteral(" · ") + toQString(record.id));
    times_->setText(tr("Detected %1, ended %2").arg(timeOfDay(record.start), timeOfDay(record.end)));
}

} // namespace velmora

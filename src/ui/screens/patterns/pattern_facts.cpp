#include "ui/screens/patterns/pattern_facts.h"

#include "ui/blocks/hairline.h"
#include "ui/blocks/layouts.h"
#include "ui/blocks/metric.h"
#include "ui/look/measures.h"
#include "ui/look/words.h"

#include <QBoxLayout>

#include <cmath>

namespace velmora {

namespace {

const QString noValue = QStringLiteral("—");

/// "11 s", or "1:28 min" from one minute on.
void showTime(Metric& metric, const MedianTime& median) {
    constexpr double minute = 60;
    const double seconds = std::round(median.seconds);
    if (median.count == 0)
        metric.setValue(noValue, {});
    else if (seconds < minute)
        metric.setValue(rounded(seconds), PatternFacts::tr("s"));
    else
        metric.setValue(clockTime(Seconds{seconds}), PatternFacts::tr("min"));
}

QString answersText(int answers, int alerts, int expired) {
    if (alerts == 0)
        return PatternFacts::tr("no alert asked for one");
    if (answers == 0)
        return PatternFacts::tr("%1 of %2 alerts expired").arg(expired).arg(alerts);
    if (answers == 1)
        return PatternFacts::tr("1 answer; %1 of %2 alerts expired").arg(expired).arg(alerts);
    return PatternFacts::tr("median of %1 answers; %2 of %3 alerts expired")
        .arg(answers)
        .arg(expired)
        .arg(alerts);
}

QString flightsText(int flights) {
    if (flights == 0)
        return PatternFacts::tr("no flight reached a visitor");
    if (flights == 1)
        return PatternFacts::tr("1 flight, seen to on station");
    return PatternFacts::tr("median of %1 flights, seen to on station").arg(flights);
}

QString insideText(const std::optional<double>& least) {
    if (!least)
        return PatternFacts::tr("the drone did not fly");
    return *least < 0 ? PatternFacts::tr("the drone left your boundary")
                      : PatternFacts::tr("nearest the drone came to your boundary");
}

} // namespace

PatternFacts::PatternFacts(QWidget* parent)
    : QWidget(parent),
      answer_(new Metric(tr("To your answer"), Metric::Size::regular, false, this)),
      station_(new Metric(tr("To the visitor"), Metric::Size::regular, false, this)),
      inside_(new Metric(tr("Inside by at least"), Metric::Size::regular, false, this)),
      layout_(new QBoxLayout(QBoxLayout::TopToBottom, this)) {
    layout_->setContentsMargins(0, 0, 0, 0);
    for (Hairline*& line : lines_)
        line = new Hairline(this);
    setInColumn(true);
}

void PatternFacts::setInColumn(bool column) {
    while (QLayoutItem* item = layout_->takeAt(0))
        delete item;
    layout_->setDirection(column ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    layout_->setSpacing(column ? 0 : Measure::gap24);
    std::size_t line = 0;
    for (Metric* metric : {answer_, station_, inside_}) {
        if (column && metric != answer_) {
            layout_->addSpacing(Measure::gap28);
            layout_->addWidget(lines_[line++]);
            layout_->addSpacing(Measure::gap20);
        }
        layout_->addWidget(metric, column ? 0 : 1, Qt::AlignTop);
    }
    if (column)
        layout_->addStretch(1);
    for (Hairline* one : lines_)
        one->setVisible(column);
}

void PatternFacts::setPatterns(const VisitPatterns& patterns) {
    const MedianTime answer = patterns.toAnswer(), station = patterns.toStation();
    const auto& inside = patterns.leastInside();
    showTime(*answer_, answer);
    answer_->setReason(answersText(answer.count, patterns.alerts(), patterns.expired()));
    showTime(*station_, station);
    station_->setReason(flightsText(station.count));
    inside_->setValue(inside ? oneDecimal(*inside) : noValue, inside ? tr("m") : QString());
    inside_->setReason(insideText(inside));
}

} // namespace velmora

#include "ui/screens/history/record_facts.h"

#include "model/mission_evidence.h"
#include "ui/blocks/art_image.h"
#include "ui/blocks/hairline.h"
#include "ui/blocks/layouts.h"
#include "ui/blocks/metric.h"
#include "ui/blocks/text.h"
#include "ui/look/measures.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"
#include "ui/screens/log_list.h"

#include <QVBoxLayout>

namespace velmora {

namespace {

const QString absent = QStringLiteral("—");

QString stepName(ResponseStep step) {
    switch (step) {
    case ResponseStep::seen:
        return RecordFacts::tr("Seen");
    case ResponseStep::answered:
        return RecordFacts::tr("answered");
    case ResponseStep::airborne:
        return RecordFacts::tr("airborne");
    case ResponseStep::onStation:
        return RecordFacts::tr("on station");
    case ResponseStep::comingHome:
        return RecordFacts::tr("coming home");
    case ResponseStep::ended:
        return RecordFacts::tr("ended");
    }
    return {};
}

/// "Seen → 8 s → answered → 5 s → airborne".
QString responseText(const MissionRecord& record) {
    const auto moments = responseTimeline(record);
    QString text = stepName(moments.front().step);
    for (std::size_t i = 1; i < moments.size(); ++i) {
        const bool landed = moments[i].step == ResponseStep::ended && flew(record.outcome);
        text += QStringLiteral(" → ") + duration(moments[i].time - moments[i - 1].time) +
                QStringLiteral(" → ") + (landed ? RecordFacts::tr("landed") : stepName(moments[i].step));
    }
    return text;
}

Text* addSection(QVBoxLayout* column, const QString& heading, QWidget* parent) {
    auto* text = new Text({}, Type::log, SB::body, parent);
    column->addWidget(new Text(heading, Type::groupHeading, SB::ink, parent));
    column->addSpacing(Measure::gap4);
    column->addWidget(text);
    column->addSpacing(Measure::gap20);
    return text;
}

} // namespace

RecordFacts::RecordFacts(QWidget* parent) : QWidget(parent) {
    auto* texts = new QVBoxLayout;
    texts->setSpacing(0);
    log_ = new LogList(LogList::Interaction::clickable, this);
    texts->addWidget(new Text(tr("What happened"), Type::groupHeading, SB::ink, this));
    texts->addSpacing(Measure::gap8);
    texts->addWidget(log_);
    texts->addSpacing(Measure::gap24);
    response_ = addSection(texts, tr("Response"), this);
    boundary_ = addSection(texts, tr("Boundary"), this);
    texts->addStretch(1);
    auto* row = new QHBoxLayout;
    row->setSpacing(Measure::gap24);
    row->addLayout(texts, 1);
    row->addWidget(buildVisitor(), 0, Qt::AlignTop);
    auto* column = bareLayout<QVBoxLayout>(this, Measure::gap20);
    column->addWidget(buildMetrics());
    column->addWidget(new Hairline(this, Hairline::Tone::between));
    column->addLayout(row);
    connect(log_, &LogList::activated, this,
            [this](const Notice& notice) { emit momentRequested((notice.time - start_).count()); });
}

QWidget* RecordFacts::buildMetrics() {
    auto* row = new QWidget(this);
    auto* layout = bareLayout<QHBoxLayout>(row);
    const auto add = [&](const QString& label) {
        auto* metric = new Metric(label, Metric::Size::regular, false, row);
        metric->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        layout->addWidget(metric, 1);
        return metric;
    };
    duration_ = add(tr("Duration"));
    furthest_ = add(tr("Furthest out"));
    battery_ = add(tr("Battery used"));
    match_ = add(tr("Match"));
    return row;
}

QWidget* RecordFacts::buildVisitor() {
    auto* visitor = new QWidget(this);
    visitor->setFixedWidth(Measure::alertPicture.width());
    picture_ = new ArtImage({}, ArtImage::Mode::fill, Measure::thumbnailRadius, visitor);
    picture_->setFixedSize(Measure::alertPicture);
    identity_ = new Text({}, Type::label2, SB::muted, visitor);
    times_ = new Text({}, Type::label2, SB::muted, visitor);
    auto* column = bareLayout<QVBoxLayout>(visitor, Measure::gap4);
    column->addWidget(picture_);
    column->addWidget(identity_);
    column->addWidget(times_);
    return visitor;
}

void RecordFacts::setRecord(const MissionRecord& record, const Site& site, const Settings& settings) {
    start_ = record.start;
    showMetrics(record);
    log_->setNotices(record.notices);
    response_->setText(responseText(record));
    showBoundary(record, site, settings);
    showVisitor(record);
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

void RecordFacts::showBoundary(const MissionRecord& record, const Site& site, const Settings& settings) {
    const auto evidence = boundaryEvidence(record, site, settings.boundaryBuffer);
    if (!evidence) {
        boundary_->setText(tr("The drone did not fly."));
        return;
    }
    const QString nearest = evidence->leastDistance < 0
                                ? tr("The drone was %1 m outside the boundary at the furthest")
                                      .arg(rounded(-evidence->leastDistance))
                                : tr("The drone stayed at least %1 m inside the boundary")
                                      .arg(oneDecimal(evidence->leastDistance));
    boundary_->setText(
        nearest + tr(" and was %1 in the %2 m buffer.")
                      .arg(duration(Seconds{evidence->secondsInBuffer}), rounded(settings.boundaryBuffer)));
}

void RecordFacts::showVisitor(const MissionRecord& record) {
    picture_->setName(toQString(record.snapshot));
    const QString label = record.label.empty() ? tr("Unknown person") : toQString(record.label);
    identity_->setText(label + QStringLiteral(" · ") + toQString(record.id));
    times_->setText(tr("Detected %1, ended %2").arg(timeOfDay(record.start), timeOfDay(record.end)));
}

} // namespace velmora

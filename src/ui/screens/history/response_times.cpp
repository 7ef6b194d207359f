#include "ui/screens/history/response_times.h"

#include "model/mission_evidence.h"
#include "ui/blocks/accessibility.h"
#include "ui/blocks/layouts.h"
#include "ui/blocks/status_dot.h"
#include "ui/blocks/text.h"
#include "ui/look/measures.h"
#include "ui/look/paint.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"

#include <QPainterPath>
#include <QVBoxLayout>

#include <algorithm>
#include <numeric>

namespace velmora {

namespace {

QString stepName(ResponseStep step) {
    switch (step) {
    case ResponseStep::seen:
        return ResponseTimes::tr("Seen");
    case ResponseStep::answered:
        return ResponseTimes::tr("answered");
    case ResponseStep::airborne:
        return ResponseTimes::tr("airborne");
    case ResponseStep::onStation:
        return ResponseTimes::tr("on station");
    case ResponseStep::comingHome:
        return ResponseTimes::tr("coming home");
    case ResponseStep::ended:
        return ResponseTimes::tr("ended");
    }
    return {};
}

/// "Seen → 8 s → answered → 5 s → airborne".
QString sentenceOf(const MissionRecord& record) {
    const auto moments = responseTimeline(record);
    QString text = stepName(moments.front().step);
    for (std::size_t i = 1; i < moments.size(); ++i) {
        const bool landed = moments[i].step == ResponseStep::ended && flew(record.outcome);
        text += QStringLiteral(" → ") + duration(moments[i].time - moments[i - 1].time) +
                QStringLiteral(" → ") + (landed ? ResponseTimes::tr("landed") : stepName(moments[i].step));
    }
    return text;
}

/// The time between two steps.
struct Part {
    QString name;
    QColor color;
    Seconds length{};
};

QString partName(ResponseStep from, ResponseStep to, Outcome outcome) {
    switch (from) {
    case ResponseStep::seen:
        return to == ResponseStep::answered || outcome == Outcome::ignored
                   ? ResponseTimes::tr("Seen to your answer")
                   : ResponseTimes::tr("Seen to the end");
    case ResponseStep::answered:
        return to == ResponseStep::airborne ? ResponseTimes::tr("Your answer to take-off")
                                            : ResponseTimes::tr("After your answer");
    case ResponseStep::airborne:
        return ResponseTimes::tr("On its way to the visitor");
    case ResponseStep::onStation:
        return to == ResponseStep::comingHome ? ResponseTimes::tr("Following")
                                              : ResponseTimes::tr("Following and landing");
    case ResponseStep::comingHome:
    case ResponseStep::ended:
        break;
    }
    return ResponseTimes::tr("Coming home and landing");
}

QColor partColor(ResponseStep from) {
    switch (from) {
    case ResponseStep::seen:
        return SB::purple;
    case ResponseStep::answered:
        return SB::mixed(SB::purple, SB::blue, 0.5);
    case ResponseStep::airborne:
        return SB::blue;
    case ResponseStep::onStation:
        return SB::teal;
    case ResponseStep::comingHome:
    case ResponseStep::ended:
        break;
    }
    return SB::dot;
}

std::vector<Part> partsOf(const MissionRecord& record) {
    const auto moments = responseTimeline(record);
    std::vector<Part> parts;
    for (std::size_t i = 1; i < moments.size(); ++i) {
        const ResponseStep from = moments[i - 1].step;
        parts.push_back({partName(from, moments[i].step, record.outcome), partColor(from),
                         std::max(moments[i].time - moments[i - 1].time, Seconds{0})});
    }
    return parts;
}

void paintBar(QPainter& painter, const QRectF& bar, const std::vector<Part>& parts) {
    constexpr double minimum = 2; // width of a part in pixels
    const auto count = static_cast<double>(parts.size());
    const double shared = bar.width() - count * minimum - (count - 1) * Measure::responseGap;
    const Seconds total = std::accumulate(parts.begin(), parts.end(), Seconds{0},
                                          [](Seconds sum, const Part& part) { return sum + part.length; });
    QPainterPath rounded;
    rounded.addRoundedRect(bar, bar.height() / 2, bar.height() / 2);
    double left = bar.left();
    for (const Part& part : parts) {
        const double share = total.count() > 0 ? part.length / total : 1 / count;
        QPainterPath piece;
        piece.addRect(left, bar.top(), minimum + share * shared, bar.height());
        painter.fillPath(piece & rounded, part.color);
        left += piece.boundingRect().width() + Measure::responseGap;
    }
}

void paintRow(QPainter& painter, const QRectF& row, const Part& part) {
    paintStatusDot(painter, {row.left() + Measure::activityDotX, row.center().y()},
                   {.color = part.color, .diameter = Measure::statusDotInRow});
    const QString time = duration(part.length);
    drawText(painter, row, time, Type::sliderValue, SB::ink, Qt::AlignRight | Qt::AlignVCenter);
    const double words = row.width() - textWidth(time, Type::sliderValue) - Measure::gap8;
    drawText(painter,
             {row.left() + Measure::responseTextX, row.top(), words - Measure::responseTextX, row.height()},
             part.name, Type::body, SB::body, Qt::AlignVCenter);
}

} // namespace

class ResponseTimes::Chart : public QWidget {
public:
    explicit Chart(QWidget* parent) : QWidget(parent) { declareRole(this, QAccessible::StaticText); }

    void setParts(std::vector<Part> parts, const QString& sentence) {
        parts_ = std::move(parts);
        setAccessibleName(sentence);
        setFixedHeight(rowsTop + static_cast<int>(parts_.size()) * Measure::responseRow - 1);
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        paintBar(painter, QRectF(0, barTop, width(), Measure::responseBar), parts_);
        int top = rowsTop;
        for (const Part& part : parts_) {
            if (top > rowsTop)
                paintHairline(painter, {Measure::responseTextX, top - 1, width() - Measure::responseTextX, 1},
                              SB::rule2);
            paintRow(painter, QRectF(0, top, width(), Measure::responseRow - 1), part);
            top += Measure::responseRow;
        }
    }

private:
    static constexpr int barTop = Measure::gap8;
    static constexpr int rowsTop = barTop + Measure::responseBar + Measure::gap12;

    std::vector<Part> parts_;
};

ResponseTimes::ResponseTimes(QWidget* parent)
    : QWidget(parent),
      total_(new Label2({}, false, this)),
      sentence_(new Text({}, Type::log, SB::body, this)),
      chart_(new Chart(this)) {
    total_->setMaximumLines(1);
    auto* heading = new QHBoxLayout;
    heading->addWidget(new Text(tr("Response"), Type::groupHeading, SB::ink, this));
    heading->addStretch(1);
    heading->addWidget(total_, 0, Qt::AlignVCenter);
    auto* column = bareLayout<QVBoxLayout>(this, Measure::gap4);
    column->addLayout(heading);
    column->addWidget(sentence_);
    column->addWidget(chart_);
}

void ResponseTimes::setRecord(const MissionRecord& record) {
    const QString length = duration(Seconds{durationOf(record)}), sentence = sentenceOf(record);
    total_->setText(flew(record.outcome) ? tr("Seen to landed %1").arg(length)
                                         : tr("Seen to the end %1").arg(length));
    sentence_->setText(sentence);
    chart_->setParts(partsOf(record), sentence);
}

void ResponseTimes::setChartShown(bool shown) {
    total_->setVisible(shown);
    chart_->setVisible(shown);
    sentence_->setVisible(!shown);
}

} // namespace velmora

#include "ui/screens/history/response_times.h"

#include "model/mission_evidence.h"
#include "ui/blocks/accessibility.h"
#include "ui/blocks/layouts.h"
#include "ui/blocks/status_dot.h"
#include "ui/blocks/text.h"
#include "ui/charts/response_parts.h"
#include "ui/look/measures.h"
#include "ui/look/paint.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"

#include <QVBoxLayout>

namespace velmora {

namespace {

void paintRow(QPainter& painter, const QRectF& row, const ResponsePart& part) {
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

    void setParts(std::vector<ResponsePart> parts, const QString& sentence) {
        parts_ = std::move(parts);
        setAccessibleName(sentence);
        setFixedHeight(rowsTop + static_cast<int>(parts_.size()) * Measure::responseRow - 1);
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        paintResponseBar(painter, QRectF(0, barTop, width(), Measure::responseBar), parts_);
        int top = rowsTop;
        for (const ResponsePart& part : parts_) {
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

    std::vector<ResponsePart> parts_;
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
    const QString length = duration(Seconds{durationOf(record)}), sentence = responseSentence(record);
    total_->setText(flew(record.outcome) ? tr("Seen to landed %1").arg(length)
                                         : tr("Seen to the end %1").arg(length));
    sentence_->setText(sentence);
    chart_->setParts(responseParts(record), sentence);
}

void ResponseTimes::setChartShown(bool shown) {
    total_->setVisible(shown);
    chart_->setVisible(shown);
    sentence_->setVisible(!shown);
}

} // namespace velmora

#include "ui/screens/overview/activity_list.h"

#include "ui/blocks/click_on_enter.h"
#include "ui/blocks/focus_ring.h"
#include "ui/blocks/hairline.h"
#include "ui/blocks/layouts.h"
#include "ui/blocks/link_button.h"
#include "ui/blocks/status_dot.h"
#include "ui/blocks/text.h"
#include "ui/blocks/tool_tip.h"
#include "ui/charts/outcomes.h"
#include "ui/look/paint.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"

#include <QAbstractButton>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace velmora {

/// One record in one line.
class ActivityRow : public QAbstractButton {
public:
    explicit ActivityRow(QWidget* parent) : QAbstractButton(parent) {
        setFixedHeight(Measure::activityRow);
        setFocusPolicy(Qt::TabFocus);
        setCursor(Qt::PointingHandCursor);
        setAttribute(Qt::WA_Hover);
        clickOnEnter(this);
        FocusRing::setRingStyle(this, {Measure::badgeRadius});
    }

    RecordKey key() const { return key_; }

    void setEntry(const HistoryEntry& entry, Date now) {
        key_ = entry.key;
        const MissionRecord& record = *entry.record;
        const Shown shown{record.start, record.outcome, std::floor(secondsSince1970(now) / 60)};
        if (shown == shown_)
            return;
        shown_ = shown;
        color_ = outcomeColor(record.outcome);
        time_ = dayAndTime(record.start, now);
        setText(outcomeText(record.outcome));
        setAccessibleName(text() + ", " + time_);
        updateToolTip();
        update();
    }

protected:
    void resizeEvent(QResizeEvent*) override { updateToolTip(); }
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        paintStatusDot(painter, {Measure::activityDotX, height() / 2.0},
                       {.color = color_, .diameter = Measure::statusDotInRow});
        const QRectF line = QRectF(rect()).adjusted(Measure::activityTitleX, 0, 0, 0);
        drawText(painter, QRectF(line.topLeft(), QSizeF(titleWidth(), height())), text(), Type::compactRow,
                 underMouse() ? SB::blue : SB::ink, Qt::AlignVCenter);
        drawText(painter, line, time_, Type::label2, SB::muted, Qt::AlignVCenter | Qt::AlignRight);
        paintHairline(painter, {0, height() - 1, width(), 1}, SB::rule2);
    }

private:
    double titleWidth() const {
        return width() - Measure::activityTitleX - textWidth(time_, Type::label2) - Measure::gap12;
    }
    void updateToolTip() {
        setToolTipIfElided(*this, text(), textWidth(text(), Type::compactRow) > titleWidth());
    }

    /// Inputs of the texts, which are expensive to format. Relative days can change only from minute to
    /// minute.
    struct Shown {
        Date start;
        Outcome outcome = Outcome::visitorLeft;
        double minute = -1; ///< current time in minutes

        bool operator==(const Shown&) const = default;
    };

    RecordKey key_{};
    Shown shown_;
    QColor color_;
    QString time_;
};

ActivityList::ActivityList(AppStore& store, QWidget* parent)
    : QWidget(parent), store_(store), shown_(Measure::activityRows) {
    auto* heading = new QHBoxLayout;
    auto* all = new LinkButton(tr("All activity →"), this);
    heading->addWidget(new Text(tr("Recent activity"), Type::groupHeading, SB::ink, this), 1);
    heading->addWidget(all, 0, Qt::AlignVCenter);
    nothing_ = new Text(tr("Nothing yet. When a camera spots someone you don't know, it appears here."),
                        Type::body, SB::body, this);
    nothing_->hide();
    auto* column = bareLayout<QVBoxLayout>(this);
    column->addLayout(heading);
    column->addSpacing(Measure::gap4);
    column->addWidget(nothing_);
    for (int i = 0; i < Measure::activityRowsWide; ++i) {
        auto* row = new ActivityRow(this);
        row->hide();
        column->addWidget(row);
        connect(row, &QAbstractButton::clicked, this, [this, row] { store_.openRecord(row->key()); });
        rows_.push_back(row);
    }
    connect(all, &QAbstractButton::clicked, this, [this] { store_.setSection(Section::history); });
}

int ActivityList::headingHeight() {
    return static_cast<int>(Type::groupHeading.line) + Measure::gap4;
}

void ActivityList::setRows(int rows) {
    const bool wide = window()->width() >= Measure::wideWindow;
    rows = std::clamp(rows, Measure::activityRowsMinimum,
                      wide ? Measure::activityRowsWide : Measure::activityRows);
    if (static_cast<std::size_t>(rows) == shown_)
        return;
    shown_ = static_cast<std::size_t>(rows);
    refresh();
}

/// The first frame does not wait for the history.
void ActivityList::refresh() {
    if (!store_.historyIsLoaded())
        return;
    const auto& history = store_.history();
    nothing_->setVisible(history.empty());
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        const bool used = i < history.size() && i < shown_;
        rows_[i]->setVisible(used);
        if (used)
            rows_[i]->setEntry(history[i], store_.now());
    }
}

} // namespace velmora

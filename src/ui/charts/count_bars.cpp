#include "ui/charts/count_bars.h"

#include "language/language.h"
#include "ui/blocks/accessibility.h"
#include "ui/blocks/click_on_enter.h"
#include "ui/blocks/focus_ring.h"
#include "ui/blocks/layouts.h"
#include "ui/blocks/status_dot.h"
#include "ui/blocks/tool_tip.h"
#include "ui/charts/chart_measures.h"
#include "ui/charts/pattern_words.h"
#include "ui/look/measures.h"
#include "ui/look/paint.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"

#include <QAbstractButton>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

using namespace ChartMeasure;

constexpr TextStyle numberStyle = Type::bodyStrong.withTabularDigits();

bool hasBar(const CountRow& row) {
    return row.dot.alpha() == 0;
}

QString countText(const CountRow& row) {
    return displayLocale().toString(row.visits);
}

/// The room for the name.
QRectF nameRect(const QRectF& rect, const CountRow& row, double nameWidth) {
    return hasBar(row) ? QRectF(rect.topLeft(), QSizeF(nameWidth - Measure::gap12, rect.height()))
                       : rect.adjusted(countTextX, 0,
                                       -std::ceil(textWidth(countText(row), numberStyle)) - Measure::gap8, 0);
}

/// A long name without a bar is a little smaller.
const TextStyle& nameStyle(const CountRow& row, double room) {
    if (hasBar(row))
        return Type::compactRow;
    return textWidth(row.name, Type::body) <= room ? Type::body : Type::label2;
}

} // namespace

void drawCountRow(QPainter& painter, const QRectF& rect, const CountRow& row, int most, double nameWidth,
                  const QColor& nameColor) {
    constexpr double track = 0.6, smaller = 0.5;
    const QRectF name = nameRect(rect, row, nameWidth);
    drawText(painter, name, row.name, nameStyle(row, name.width()), nameColor, Qt::AlignVCenter);
    drawText(painter, rect, countText(row), numberStyle, SB::ink, Qt::AlignVCenter | Qt::AlignRight);
    if (!hasBar(row)) {
        paintStatusDot(painter, {rect.left() + Measure::statusDotInRow / 2, rect.center().y()},
                       {.color = row.dot, .diameter = Measure::statusDotInRow});
        return;
    }
    QRectF bar(rect.left() + nameWidth, rect.center().y() - countBar / 2.0,
               rect.width() - nameWidth - countNumber, countBar);
    fillRounded(painter, bar, countBarRadius, SB::faded(SB::rule2, track));
    bar.setWidth(std::max<double>(bar.width() * row.visits / std::max(most, 1), countBar));
    fillRounded(painter, bar, countBarRadius, SB::faded(SB::purple, row.visits == most ? 1 : smaller));
}

double countNameWidth(const std::vector<CountRow>& rows, double width) {
    double widest = countName;
    for (const CountRow& row : rows)
        widest = std::max(widest, textWidth(row.name, Type::compactRow) + Measure::gap12);
    constexpr double share = 0.5;
    return std::ceil(std::min(widest, std::max<double>(countName, width * share)));
}

class CountBars::Row : public QAbstractButton {
public:
    explicit Row(CountBars* bars) : QAbstractButton(bars), bars_(*bars) {
        setFixedHeight(countRow);
        if (bars->interaction_ == Interaction::readOnly) {
            declareRole(this, QAccessible::StaticText);
            setFocusPolicy(Qt::NoFocus);
            setAttribute(Qt::WA_TransparentForMouseEvents);
            return;
        }
        setFocusPolicy(Qt::TabFocus);
        setCursor(Qt::PointingHandCursor);
        setAttribute(Qt::WA_Hover);
        clickOnEnter(this);
        FocusRing::setRingStyle(this, {Measure::badgeRadius});
        connect(this, &QAbstractButton::clicked, bars, [this] { emit bars_.chosen(row_.id); });
    }

    const QString& id() const { return row_.id; }
    void setRow(const CountRow& row, int most) {
        row_ = row;
        most_ = most;
        setAccessibleName(Words::tr("%1, %2", "name, visits").arg(row.name, visitsWords(row.visits)));
        updateToolTip();
        update();
    }

    void updateToolTip() {
        const double room = nameRect(rect(), row_, nameWidth()).width();
        setToolTipIfElided(*this, row_.name, textWidth(row_.name, nameStyle(row_, room)) > room);
    }

protected:
    void resizeEvent(QResizeEvent*) override { updateToolTip(); }
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const QColor plain = hasBar(row_) ? SB::ink : SB::body;
        const QColor color = isDown() ? SB::purple : underMouse() ? SB::blue : plain;
        drawCountRow(painter, rect(), row_, most_, nameWidth(), color);
    }

private:
    double nameWidth() const { return bars_.nameWidth_; }

    CountBars& bars_;
    CountRow row_;
    int most_ = 0;
};

CountBars::CountBars(Interaction interaction, QWidget* parent) : QWidget(parent), interaction_(interaction) {
    bareLayout<QVBoxLayout>(this);
}

void CountBars::setRows(std::vector<CountRow> rows) {
    rows.resize(std::min(rows.size(), mostRows));
    if (rows == shown_)
        return;
    shown_ = std::move(rows);
    refresh();
}

void CountBars::setShownRows(std::size_t rows) {
    if (rows == limit_)
        return;
    limit_ = rows;
    refresh();
}

void CountBars::resizeEvent(QResizeEvent*) {
    fitNames();
}

void CountBars::fitNames() {
    nameWidth_ = countNameWidth(shown_, width());
    for (Row* row : rows_)
        row->updateToolTip();
}

/// The focus stays with what its row counts; hiding that row would move it to another control.
void CountBars::refresh() {
    int most = 0;
    for (const CountRow& row : shown_)
        most = std::max(most, row.visits);
    while (rows_.size() < shown_.size()) {
        rows_.push_back(new Row(this));
        layout()->addWidget(rows_.back());
    }
    const auto focused = std::ranges::find_if(rows_, [](const Row* row) { return row->hasFocus(); });
    const QString kept = focused == rows_.end() ? QString() : (*focused)->id();
    const std::size_t used = std::min(shown_.size(), limit_);
    const bool stays = std::any_of(shown_.begin(), shown_.begin() + static_cast<std::ptrdiff_t>(used),
                                   [&](const CountRow& row) { return row.id == kept; });
    if (!kept.isEmpty() && !stays)
        setFocus(Qt::OtherFocusReason);
    for (std::size_t i = 0; i < used; ++i) {
        rows_[i]->setRow(shown_[i], most);
        rows_[i]->show();
        if (!kept.isEmpty() && shown_[i].id == kept)
            rows_[i]->setFocus(Qt::TabFocusReason);
    }
    for (std::size_t i = used; i < rows_.size(); ++i)
        rows_[i]->hide();
    fitNames();
}

} // namespace velmora

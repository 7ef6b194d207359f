#include "ui/screens/log_list.h"

#include "ui/blocks/accessibility.h"
#include "ui/blocks/click_on_enter.h"
#include "ui/blocks/focus_ring.h"
#include "ui/blocks/status_dot.h"
#include "ui/blocks/text.h"
#include "ui/look/measures.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"

#include <QAbstractButton>
#include <QPainter>
#include <QVBoxLayout>

namespace velmora {

namespace {

constexpr int maximumLines = 6; // per notice

} // namespace

QColor noticeColor(Notice::Level level) {
    switch (level) {
    case Notice::Level::good:
        return SB::teal;
    case Notice::Level::caution:
        return SB::caution;
    case Notice::Level::alert:
        return SB::alert;
    case Notice::Level::info:
        break;
    }
    return SB::rule;
}

/// One notice. The text is a child widget, so that assistive technology reads it; time and dot are painted.
class LogRow : public QAbstractButton {
public:
    LogRow(LogList::Interaction interaction, QWidget* parent)
        : QAbstractButton(parent), text_(new Text({}, Type::log, SB::body, this)) {
        setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
        text_->setMaximumLines(maximumLines);
        if (interaction == LogList::Interaction::clickable)
            makeClickable();
        else
            makeReadOnly();
        auto* column = new QVBoxLayout(this);
        column->setContentsMargins(Measure::logTextX, 0, 0, 0);
        column->addWidget(text_);
    }

    void setNotice(const Notice& notice) {
        time_ = timeOfDay(notice.time);
        color_ = noticeColor(notice.level);
        text_->setText(shownText(notice.text));
        (focusPolicy() == Qt::NoFocus ? static_cast<QWidget*>(text_) : this)
            ->setAccessibleName(time_ + ' ' + text_->text());
        update();
    }

    void setCurrent(bool current) {
        current_ = current;
        updateColor();
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const QRectF time(0, 0, Measure::logTime, Type::logTime.line);
        drawText(painter, time, time_, Type::logTime, SB::muted, Qt::AlignLeft);
        const QPointF dot((Measure::logTime + Measure::logTextX) / 2.0, Type::log.line / 2);
        paintStatusDot(painter, dot,
                       {.color = color_, .halo = current_, .diameter = Measure::statusDotInRow});
    }

    void enterEvent(QEnterEvent*) override { updateColor(); }
    void leaveEvent(QEvent*) override { updateColor(); }

private:
    void updateColor() {
        const bool hovered = underMouse() && focusPolicy() != Qt::NoFocus;
        text_->setColor(current_ || hovered ? SB::ink : SB::body);
    }

    void makeClickable() {
        setFocusPolicy(Qt::TabFocus);
        setCursor(Qt::PointingHandCursor);
        clickOnEnter(this);
        FocusRing::setRingStyle(this, {Measure::badgeRadius});
    }
    void makeReadOnly() {
        setFocusPolicy(Qt::NoFocus);
        declareRole(this, QAccessible::Grouping);
    }

    Text* text_;
    QString time_;
    QColor color_;
    bool current_ = false;
};

LogList::LogList(Interaction interaction, QWidget* parent)
    : QWidget(parent), interaction_(interaction), column_(new QVBoxLayout(this)) {
    column_->setContentsMargins(0, 0, 0, 0);
    column_->setSpacing(Measure::gap8);
}

void LogList::setNotices(const std::vector<Notice>& notices) {
    if (notices == notices_)
        return;
    notices_ = notices;
    column_->setEnabled(false); // avoids a layout of all rows for each new row
    while (rows_.size() < notices.size())
        addRow();
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        rows_[i]->setVisible(i < notices.size());
        if (i < notices.size())
            rows_[i]->setNotice(notices[i]);
    }
    column_->setEnabled(true);
    column_->invalidate();
}

void LogList::setCurrent(std::optional<std::size_t> index) {
    if (index == current_)
        return;
    if (current_)
        rows_[*current_]->setCurrent(false);
    current_ = index;
    if (current_)
        rows_[*current_]->setCurrent(true);
}

void LogList::addRow() {
    const std::size_t index = rows_.size();
    auto* row = new LogRow(interaction_, this);
    connect(row, &QAbstractButton::clicked, this, [this, index] { emit activated(notices_[index]); });
    rows_.push_back(row);
    column_->insertWidget(static_cast<int>(index), row);
}

} // namespace velmora

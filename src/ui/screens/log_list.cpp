#include "ui/screens/log_list.h"

#include "ui/blocks/status_dot.h"
#include "ui/blocks/text.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"
#include "ui/words.h"

#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>

namespace velmora {

namespace {

QColor colorOf(Notice::Level level) {
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

} // namespace

/// One notice. Its text is a child, so that assistive technology reads it; time and dot are painted beside
/// it.
class LogRow : public QWidget {
public:
    explicit LogRow(QWidget* parent) : QWidget(parent), text_(new Text({}, Type::log, SB::body, this)) {
        auto* column = new QVBoxLayout(this);
        column->setContentsMargins(Measure::logTextX, 0, 0, 0);
        column->addWidget(text_);
    }

    void setNotice(const Notice& notice) {
        time_ = timeOfDay(notice.time);
        color_ = colorOf(notice.level);
        text_->setText(toQString(notice.text));
        text_->setAccessibleName(time_ + ' ' + text_->text());
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const QRectF time(0, 0, Measure::logTime, Type::logTime.line);
        drawText(painter, time, time_, Type::logTime, SB::muted, Qt::AlignLeft);
        const QPointF dot((Measure::logTime + Measure::logTextX) / 2.0, Type::log.line / 2);
        paintStatusDot(painter, dot, {.color = color_, .diameter = Measure::statusDotInRow});
    }

private:
    Text* text_;
    QString time_;
    QColor color_;
};

LogList::LogList(QWidget* parent) : QWidget(parent), column_(new QVBoxLayout(this)) {
    column_->setContentsMargins(0, 0, 0, 0);
    column_->setSpacing(Measure::gap8);
}

void LogList::setNotices(const std::vector<Notice>& notices) {
    if (notices == notices_)
        return;
    notices_ = notices;
    while (rows_.size() < notices.size()) {
        rows_.push_back(new LogRow(this));
        column_->insertWidget(static_cast<int>(rows_.size()) - 1, rows_.back());
    }
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        rows_[i]->setVisible(i < notices.size());
        if (i < notices.size())
            rows_[i]->setNotice(notices[i]);
    }
}

void LogList::mouseReleaseEvent(QMouseEvent* event) {
    for (std::size_t i = 0; i < notices_.size(); ++i)
        if (rows_[i]->geometry().contains(event->pos())) {
            emit activated(notices_[i]);
            return;
        }
}

} // namespace velmora

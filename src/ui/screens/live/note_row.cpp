#include "ui/screens/live/note_row.h"

#include "ui/blocks/accessibility.h"
#include "ui/blocks/status_dot.h"
#include "ui/blocks/text.h"
#include "ui/look/measures.h"
#include "ui/look/motion.h"
#include "ui/look/paint.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"
#include "ui/screens/log_list.h"
#include "ui/screens/stale_banner.h"

#include <cmath>

namespace velmora {

/// A message with a dot in front.
class NoteRow::Message : public QWidget {
public:
    explicit Message(QWidget* parent) : QWidget(parent) {
        declareRole(this, QAccessible::AlertMessage);
        hide();
    }

    const QString& text() const { return text_; }
    void setMessage(const QString& text, const QColor& color) {
        text_ = text;
        color_ = color;
        show();
        update();
        if (isVisible())
            announce(this, text);
        else
            setAccessibleName(text);
    }
    void clear() {
        text_.clear();
        hide();
    }
    void setOpacity(double opacity) {
        opacity_ = opacity;
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setOpacity(opacity_);
        const QPointF center(1 + Measure::statusDot / 2, height() / 2.0);
        fillDisc(painter, center, Measure::statusDot + 2, SB::dTitle);
        fillDisc(painter, center, Measure::statusDot, color_);
        drawText(painter, QRectF(rect()).adjusted(Measure::noteTextX - Measure::cardInset + 1, 0, 0, 0),
                 text_, Type::compactRow, SB::dTitle, Qt::AlignVCenter);
    }

private:
    QString text_;
    QColor color_;
    double opacity_ = 0;
};

/// A caption with a dot, in its own width.
class NoteRow::Remark : public QWidget {
public:
    explicit Remark(QWidget* parent) : QWidget(parent) {
        declareRole(this, QAccessible::StaticText);
        hide();
    }

    void setText(const QString& text) {
        if (text == accessibleName())
            return;
        setAccessibleName(text);
        setVisible(!text.isEmpty());
        const double words = textWidth(text, Type::caption.withTabularDigits());
        resize(static_cast<int>(std::ceil(textX + words)), Measure::noteRowLow);
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        paintStatusDot(painter, {Measure::statusDotInRow / 2, height() / 2.0},
                       {.color = SB::lilac, .diameter = Measure::statusDotInRow});
        drawText(painter, QRectF(textX, 0, width() - textX + 1, height()), accessibleName(),
                 Type::caption.withTabularDigits(), SB::dTitle, Qt::AlignVCenter);
    }

private:
    static constexpr double textX = Measure::statusDotInRow + Measure::gap8;
};

NoteRow::NoteRow(AppStore& store, QWidget* parent)
    : QWidget(parent),
      store_(store),
      latest_(store, this),
      note_(new Text(tr("Keep the drone in sight while it flies"), Type::legend, SB::dLabel, this)),
      message_(new Message(this)),
      remark_(new Remark(this)),
      shown_(*this, Motion::notice) {
    note_->setMaximumLines(1);
    setFixedHeight(Measure::noteRow);
    connect(&latest_, &LatestNotice::changed, this, &NoteRow::showNewest);
    connect(&store_, &AppStore::commandFailed, this, &NoteRow::showFailure);
    connect(&store_, &AppStore::pendingCommandChanged, this, [this] {
        if (store_.pendingCommand())
            dropFailure();
    });
    connect(&store_, &AppStore::stateChanged, this, &NoteRow::dropOldFailure);
    connect(&failureTimer_, &UiTimer::timeout, this, &NoteRow::dropOldFailure);
    connect(&shown_, &Transition::changed, this, &NoteRow::place);
    connect(&shown_, &Transition::finished, this, [this] {
        if (shown_.value() == 0)
            message_->clear();
    });
}

void NoteRow::refresh() {
    remark_->setText(remark());
    place();
}

void NoteRow::setLow(bool low) {
    low_ = low;
    setFixedHeight(low ? Measure::noteRowLow : Measure::noteRow);
    place();
}

QString NoteRow::remark() const {
    if (store_.freshness() == Freshness::stale)
        return StaleBanner::pictureAge(store_);
    const LiveState* state = store_.knownState();
    return state && state->atBoundary && airborne(state->phase) ? tr("Holding at your boundary") : QString();
}

void NoteRow::showFailure(Command command, const QString& reason) {
    if (answersAlert(command))
        return; // the alert's card shows it
    failure_ = Failure{failureText(command, reason), store_.now(), store_.phase()};
    failureTimer_.start();
    showNewest();
}

/// A failure is over after ten seconds, with the next command and with the next phase.
void NoteRow::dropOldFailure() {
    if (failure_ && (isOver(failure_->at, store_.now()) || store_.phase() != failure_->phase))
        dropFailure();
}

void NoteRow::dropFailure() {
    if (!failure_)
        return;
    failure_.reset();
    failureTimer_.stop();
    showNewest();
}

/// A failure stands before a notice.
void NoteRow::showNewest() {
    if (!failure_ && !latest_.notice()) {
        shown_.moveTo(0);
        return;
    }
    const QString text = failure_ ? failure_->text : shownText(latest_.notice()->text);
    if (text == message_->text() && shown_.value() == 1)
        return;
    message_->setMessage(text, failure_ ? SB::alert : noticeColor(latest_.notice()->level));
    shown_.moveTo(1);
}

void NoteRow::resizeEvent(QResizeEvent*) {
    place();
}

void NoteRow::place() {
    const int right = width() - Measure::cardInset;
    remark_->move(right - remark_->width(), (height() - remark_->height()) / 2);
    const int end = remark_->isHidden() ? right : remark_->x() - Measure::gap16;
    const int top = low_ ? Measure::noteTopLow : Measure::noteTop;
    const int line = static_cast<int>(Type::compactRow.line);
    message_->setGeometry(Measure::cardInset - 1, top, end - Measure::cardInset + 1, line);
    message_->setOpacity(shown_.value());
    const int noteHeight = static_cast<int>(Type::legend.line);
    const int middle = (height() - noteHeight) / 2;
    const double below = top + line - middle;
    note_->setGeometry(Measure::cardInset, middle + static_cast<int>(std::lround(below * shown_.value())),
                       end - Measure::cardInset, noteHeight);
}

} // namespace velmora

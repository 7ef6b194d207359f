#include "ui/charts/visit_matrix.h"

#include "language/language.h"
#include "ui/blocks/accessibility.h"
#include "ui/blocks/click_on_enter.h"
#include "ui/blocks/focus_ring.h"
#include "ui/charts/chart_measures.h"
#include "ui/charts/pattern_words.h"
#include "ui/look/measures.h"
#include "ui/look/paint.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

using namespace ChartMeasure;

constexpr TextStyle hourStyle{SBFont::Face::regular, 10, 12, 0, false, true};
constexpr TextStyle dayStyleSmall{SBFont::Face::medium, 9, 12},
    dayStyleSmallStrong{SBFont::Face::semiBold, 9, 12};
constexpr TextStyle cellStyle{SBFont::Face::semiBold, 11, 14, 0, false, true};

int countAt(const WeekHours& hours, WeekHour hour) {
    return hours[static_cast<std::size_t>(hour.weekday)][static_cast<std::size_t>(hour.hour)];
}

int mostOf(const WeekHours& hours) {
    int most = 0;
    for (const auto& day : hours)
        most = std::max(most, std::ranges::max(day));
    return most;
}

/// How strong the colour of a square is, 0 to 1. Where many visits came in one hour, the shares are graded.
double strength(int visits, int most) {
    constexpr double one = 0.32, two = 0.8;
    constexpr int graded = 10; // from this maximum on
    if (most >= graded)
        return one + (1 - one) * (visits - 1) / (most - 1);
    return visits == 1 ? one : visits == 2 ? two : 1;
}

int radiusOf(int column) {
    return column >= matrixNumbers ? Measure::badgeRadius : 2;
}

class MatrixPainting {
public:
    MatrixPainting(QPainter& painter, const VisitTimes& times, const MatrixForm& form)
        : painter_(painter), times_(times), form_(form), most_(mostOf(times.hours)) {}

    void drawDays() {
        for (int weekday = 0; weekday < daysInWeek; ++weekday) {
            const bool named = times_.group && times_.group->weekday == weekday;
            const QRectF cell = form_.cell({weekday, 0});
            const QRectF label(0, cell.top(), form_.labels, cell.height());
            const QString name = displayLocale().standaloneDayName(
                weekday + 1, form_.isSmall ? QLocale::NarrowFormat : QLocale::ShortFormat);
            const TextStyle& style = form_.isSmall ? named ? dayStyleSmallStrong : dayStyleSmall
                                     : named       ? Type::label2Strong
                                                   : Type::label2;
            drawText(painter_, label, name, style, named ? SB::ink : SB::muted, Qt::AlignVCenter);
        }
    }

    void drawHours() {
        const int stride = form_.column >= matrixNumbers ? 3 : 6;
        const double y = form_.isSmall ? form_.cell({daysInWeek - 1, 0}).bottom() + matrixHoursGap : 0;
        for (int hour = 0; hour < hoursInDay; hour += stride)
            drawText(painter_, {form_.cell({0, hour}).left(), y, double(form_.column * stride), matrixHours},
                     hourText(hour), hourStyle, SB::muted, Qt::AlignVCenter);
    }

    void drawSquare(WeekHour hour) {
        const QRectF cell = form_.cell(hour);
        const int visits = countAt(times_.hours, hour), radius = radiusOf(form_.column);
        if (visits == 0) {
            fillRounded(painter_, cell, radius, SB::panel, SB::faded(SB::rule2, 0.55));
            return;
        }
        constexpr double light = 0.72; // below it, ink has the better contrast
        const double share = strength(visits, most_);
        fillRounded(painter_, cell, radius, SB::faded(SB::purple, share));
        const QString number = displayLocale().toString(visits);
        if (!form_.isSmall && form_.column >= matrixNumbers &&
            textWidth(number, cellStyle) <= cell.width() - 2)
            drawText(painter_, cell, number, cellStyle, share < light ? SB::ink : SB::page, Qt::AlignCenter);
    }

    void drawOutline() {
        if (!times_.group || form_.isSmall)
            return;
        const auto [weekday, part, visits] = *times_.group;
        const QRectF hours =
            form_.cell({weekday, firstHourOf(part)}) | form_.cell({weekday, endHourOf(part) - 1});
        constexpr double outset = matrixOutset - matrixOutline / 2;
        QRectF outline = hours.adjusted(-outset, -outset, outset, outset);
        outline.setRight(std::min(outline.right(), form_.size().width() - matrixOutline / 2));
        painter_.setPen(QPen(SB::purple, matrixOutline));
        painter_.setBrush(Qt::NoBrush);
        painter_.setRenderHint(QPainter::Antialiasing);
        painter_.drawRoundedRect(outline, matrixOutlineRadius, matrixOutlineRadius);
    }

private:
    QPainter& painter_;
    const VisitTimes& times_;
    const MatrixForm& form_;
    int most_;
};

} // namespace

MatrixForm MatrixForm::full(int width) {
    const int room = (width - matrixLabels) / hoursInDay;
    return {matrixLabels, std::clamp(room, matrixColumnLeast, matrixColumnMost), false};
}

MatrixForm MatrixForm::small(int width) {
    const int room = (width - matrixLabelsSmall) / hoursInDay;
    return {matrixLabelsSmall, std::clamp(room, matrixColumnLeast, matrixColumnSmall), true};
}

QSize MatrixForm::size() const {
    const int outline = isSmall ? 0 : static_cast<int>(matrixOutset) - matrixCellGap;
    return {labels + hoursInDay * column,
            matrixHours + matrixHoursGap + daysInWeek * column - (isSmall ? matrixCellGap : -outline)};
}

QRectF MatrixForm::cell(WeekHour hour) const {
    const int top = isSmall ? 0 : matrixHours + matrixHoursGap;
    const double side = column - matrixCellGap;
    return {double(labels + hour.hour * column), double(top + hour.weekday * column), side, side};
}

void drawVisitMatrix(QPainter& painter, const VisitTimes& times, const MatrixForm& form) {
    MatrixPainting painting(painter, times, form);
    painting.drawDays();
    painting.drawHours();
    for (int weekday = 0; weekday < daysInWeek; ++weekday)
        for (int hour = 0; hour < hoursInDay; ++hour)
            painting.drawSquare({weekday, hour});
    painting.drawOutline();
}

/// An hour with visits. The matrix paints it.
class VisitMatrix::Square : public QAbstractButton {
public:
    Square(WeekHour hour, VisitMatrix* matrix) : QAbstractButton(matrix), matrix_(*matrix), hour_(hour) {
        setCursor(Qt::PointingHandCursor);
        setAttribute(Qt::WA_Hover);
        clickOnEnter(this);
        connect(this, &QAbstractButton::clicked, matrix,
                [this] { emit matrix_.chosen(hour_.weekday, hour_.hour); });
    }

    WeekHour hour() const { return hour_; }
    void describe(const QString& words) {
        setAccessibleName(words);
        setToolTip(plainToolTip(words));
    }

protected:
    void focusInEvent(QFocusEvent* event) override {
        matrix_.offerTab(this);
        QAbstractButton::focusInEvent(event);
    }
    void keyPressEvent(QKeyEvent* event) override {
        switch (event->key()) {
        case Qt::Key_Left:
        case Qt::Key_Right:
        case Qt::Key_Up:
        case Qt::Key_Down:
            return matrix_.moveFrom(*this, static_cast<Qt::Key>(event->key()));
        default:
            QAbstractButton::keyPressEvent(event);
        }
    }
    void paintEvent(QPaintEvent*) override {
        constexpr double pressed = 0.24, hovered = 0.12;
        if (!isDown() && !underMouse())
            return;
        QPainter painter(this);
        fillRounded(painter, rect(), radiusOf(height()), SB::faded(SB::ink, isDown() ? pressed : hovered));
    }

private:
    VisitMatrix& matrix_;
    WeekHour hour_;
};

VisitMatrix::VisitMatrix(Form form, QWidget* parent) : QWidget(parent), form_(form) {
    declareRole(this, form == Form::full ? QAccessible::Grouping : QAccessible::Graphic);
    setAccessibleName(tr("Visits by weekday and hour"));
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

MatrixForm VisitMatrix::formFor(int width) const {
    return form_ == Form::full ? MatrixForm::full(width) : MatrixForm::small(width);
}

QSize VisitMatrix::sizeHint() const {
    return formFor(matrixLabels + hoursInDay * matrixColumn).size();
}

QSize VisitMatrix::minimumSizeHint() const {
    return {formFor(0).size().width(), heightForWidth(width())};
}

void VisitMatrix::setTimes(const VisitTimes& times) {
    if (times == times_)
        return;
    times_ = times;
    update();
    if (form_ == Form::small)
        return;
    for (int number = 0; number < daysInWeek * hoursInDay; ++number)
        showSquare(number);
    const auto firstShown =
        std::ranges::find_if(squares_, [](Square* one) { return one && !one->isHidden(); });
    offerTab(firstShown == squares_.end() ? nullptr : *firstShown);
    placeSquares();
}

void VisitMatrix::showSquare(int number) {
    const WeekHour hour{number / hoursInDay, number % hoursInDay};
    const int visits = countAt(times_.hours, hour);
    Square*& square = squares_[static_cast<std::size_t>(number)];
    if (!square && visits > 0) {
        square = new Square(hour, this);
        const auto next =
            std::find_if(squares_.begin() + number + 1, squares_.end(), [](Square* one) { return one; });
        if (next != squares_.end())
            square->stackUnder(*next); // children are read in this order
    }
    if (!square)
        return;
    if (visits == 0 && square->hasFocus())
        setFocus(Qt::OtherFocusReason); // otherwise hiding the square moves the focus to another control
    square->setVisible(visits > 0);
    square->describe(hourWords(hour, visits));
}

void VisitMatrix::placeSquares() {
    const MatrixForm form = formFor(width());
    for (Square* square : squares_) {
        if (!square)
            continue;
        square->setGeometry(form.cell(square->hour()).toRect());
        FocusRing::setRingStyle(square, {static_cast<double>(radiusOf(form.column))});
    }
}

/// The tab key reaches one square.
void VisitMatrix::offerTab(Square* offered) {
    for (Square* square : squares_)
        if (square)
            square->setFocusPolicy(square == offered ? Qt::StrongFocus : Qt::ClickFocus);
}

/// Left and right go through all squares; up and down to the nearest hour of the nearest weekday.
void VisitMatrix::moveFrom(const Square& square, Qt::Key key) {
    const WeekHour from = square.hour();
    const auto number = [](WeekHour hour) { return hour.weekday * hoursInDay + hour.hour; };
    const bool back = key == Qt::Key_Left || key == Qt::Key_Up,
               along = key == Qt::Key_Left || key == Qt::Key_Right;
    Square* nearest = nullptr;
    int least = 0;
    for (Square* one : squares_) {
        if (!one || one->isHidden())
            continue;
        const WeekHour to = one->hour();
        const int days = back ? from.weekday - to.weekday : to.weekday - from.weekday;
        const int step = along ? (back ? -1 : 1) * (number(to) - number(from))
                               : days * hoursInDay + std::abs(to.hour - from.hour);
        if ((along ? step > 0 : days > 0) && (!nearest || step < least)) {
            nearest = one;
            least = step;
        }
    }
    if (nearest)
        nearest->setFocus(key == Qt::Key_Left || key == Qt::Key_Up ? Qt::BacktabFocusReason
                                                                   : Qt::TabFocusReason);
}

/// The squares of the small form have no widgets of their own.
bool VisitMatrix::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip || form_ == Form::full)
        return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const MatrixForm form = formFor(width());
    for (int weekday = 0; weekday < daysInWeek; ++weekday)
        for (int hour = 0; hour < hoursInDay; ++hour)
            if (const int visits = countAt(times_.hours, {weekday, hour});
                visits > 0 && form.cell({weekday, hour}).contains(help->pos()))
                QToolTip::showText(help->globalPos(), plainToolTip(hourWords({weekday, hour}, visits)), this,
                                   form.cell({weekday, hour}).toRect());
    return true;
}

void VisitMatrix::resizeEvent(QResizeEvent*) {
    placeSquares();
}

void VisitMatrix::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    drawVisitMatrix(painter, times_, formFor(width()));
}

} // namespace velmora

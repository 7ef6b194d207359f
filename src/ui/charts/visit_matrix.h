#pragma once

#include "model/visit_patterns.h"

#include <QWidget>

#include <array>

class QPainter;

namespace velmora {

/// What the matrix shows.
struct VisitTimes {
    WeekHours hours{};
    std::optional<VisitGroup> group; ///< outlined

    static VisitTimes of(const VisitPatterns& patterns) { return {patterns.hours(), patterns.group()}; }
    bool operator==(const VisitTimes&) const = default;
};

/// The sizes of a matrix in pixels.
struct MatrixForm {
    int labels;   ///< width of the weekdays
    int column;   ///< from one hour or weekday to the next
    bool isSmall; ///< without numbers, the weekdays as letters, the hours below
    QSize size() const;
    QRectF cell(WeekHour hour) const;

    static MatrixForm full(int width);
    static MatrixForm small(int width);
    bool operator==(const MatrixForm&) const = default;
};

/// Draws weekdays, hours and one square for each hour of the week, from the painter's origin.
void drawVisitMatrix(QPainter& painter, const VisitTimes& times, const MatrixForm& form);

/// When visits came: a matrix of weekday and hour. Each square with visits is a button; the arrow keys go
/// from one to the next.
class VisitMatrix : public QWidget {
    Q_OBJECT

public:
    enum class Form { full, small };

    VisitMatrix(Form form, QWidget* parent);

    void setTimes(const VisitTimes& times);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override { return formFor(width).size().height(); }

signals:
    /// The owner chose an hour with visits. `weekday` 0 is Monday.
    void chosen(int weekday, int hour);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    class Square;

    MatrixForm formFor(int width) const;
    void showSquare(int number);
    void placeSquares();
    void offerTab(Square* offered);
    void moveFrom(const Square& square, Qt::Key key);

    Form form_;
    VisitTimes times_;
    std::array<Square*, std::size_t{daysInWeek} * hoursInDay> squares_{}; ///< null: never had visits
};

} // namespace velmora

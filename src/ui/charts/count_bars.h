#pragma once

#include <QColor>
#include <QWidget>

#include <vector>

class QPainter;

namespace velmora {

/// One row of counted visits.
struct CountRow {
    QString id;   ///< what `chosen` reports
    QString name; ///< shown
    int visits = 0;
    QColor dot = Qt::transparent; ///< before the name; a row with a dot has no bar

    bool operator==(const CountRow&) const = default;
};

/// Draws the row into the rectangle. `most` is the largest count of all rows, `nameWidth` the width of the
/// column of names in pixels.
void drawCountRow(QPainter& painter, const QRectF& rect, const CountRow& row, int most, double nameWidth,
                  const QColor& nameColor);
/// The width of the column of names in rows of this width.
double countNameWidth(const std::vector<CountRow>& rows, double width);

/// Counts of visits, one row each: a name, a bar in proportion to the largest count, the count. Clickable
/// rows are buttons.
class CountBars : public QWidget {
    Q_OBJECT

public:
    /// Shows no more rows than this.
    static constexpr std::size_t mostRows = 50;

    enum class Interaction { readOnly, clickable };

    CountBars(Interaction interaction, QWidget* parent);

    void setRows(std::vector<CountRow> rows);
    /// Shows the first rows only.
    void setShownRows(std::size_t rows);

signals:
    /// The owner chose a row.
    void chosen(const QString& id);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    class Row;

    void refresh();
    void fitNames();

    Interaction interaction_;
    std::vector<CountRow> shown_;
    std::size_t limit_ = mostRows;
    std::vector<Row*> rows_;
    double nameWidth_ = 0; ///< of the column of names, pixels
};

} // namespace velmora

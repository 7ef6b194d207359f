#pragma once

#include <QColor>
#include <QWidget>

class QPainter;

namespace velmora {

/// Fills a line that is one unit wide or high, as thick in one place as in another where a unit is not a
/// whole number of the screen's pixels.
void paintHairline(QPainter& painter, const QRect& line, const QColor& color);

/// A thin line between two blocks.
class Hairline : public QWidget {
public:
    enum class Tone {
        first,
        between,
        dark
    }; ///< the first line of a block, one between its rows, one on navy

    explicit Hairline(QWidget* parent, Tone tone = Tone::first);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor color_;
};

} // namespace velmora

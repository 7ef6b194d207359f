#pragma once

#include <QString>
#include <QWidget>

class QPainter;

namespace velmora {

/// Width of a badge with this text in pixels.
double badgeWidth(const QString& text);
/// Draws a badge with its right edge at `right`, vertically centred on `y`.
void paintBadge(QPainter& painter, double right, double y, const QString& text);

/// A short text in a frame.
class Badge : public QWidget {
    Q_OBJECT

public:
    Badge(const QString& text, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString text_;
};

/// A number in a circle.
class NumberBadge : public QWidget {
    Q_OBJECT

public:
    NumberBadge(int number, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int number_;
};

} // namespace velmora

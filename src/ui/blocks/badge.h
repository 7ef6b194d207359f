#pragma once

#include <QString>
#include <QWidget>

class QPainter;

namespace velmora {

/// Draws a badge that ends at the right and is centred on y; returns its width.
double paintBadge(QPainter& painter, double right, double y, const QString& text);

/// A word in a frame.
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

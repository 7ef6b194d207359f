#pragma once

#include <QColor>
#include <QWidget>

namespace velmora {

/// A caption with a dot on a dark plate, for use on top of a picture.
class Chip : public QWidget {
    Q_OBJECT

public:
    explicit Chip(QWidget* parent);

    /// Also resizes the chip to fit the text.
    void setText(const QString& text);
    /// A ring sets off a dark dot from the plate.
    void setDot(const QColor& color, bool ring = false);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor dot_;
    bool ring_ = false;
};

} // namespace velmora

#pragma once

#include <QWidget>

namespace velmora {

/// A caption with a dot on a dark plate, for use on top of a picture.
class Chip : public QWidget {
    Q_OBJECT

public:
    explicit Chip(QWidget* parent);

    /// Also resizes the chip to fit the text.
    void setText(const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace velmora

#pragma once

#include <QWidget>

namespace velmora {

/// A caption with a dot on a dark plate, laid over a picture.
class Chip : public QWidget {
    Q_OBJECT

public:
    explicit Chip(QWidget* parent);

    /// The chip is as wide as its text.
    void setText(const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace velmora

#pragma once

#include <QColor>
#include <QWidget>

namespace velmora {

/// One line of text with a dot in front, for a message that needs attention. Assistive technology reads it
/// when it appears.
class MessageLine : public QWidget {
    Q_OBJECT

public:
    MessageLine(const QColor& color, QWidget* parent);

    /// Announces the message, unless only numbers in it have changed.
    void setText(const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor color_;
    QString text_;
};

} // namespace velmora

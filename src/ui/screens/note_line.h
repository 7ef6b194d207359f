#pragma once

#include "ui/blocks/text.h"
#include "ui/look/measures.h"

#include <QTimer>

namespace velmora {

/// A note of one line whose place an urgent message takes for ten seconds.
class NoteLine : public QWidget {
    Q_OBJECT

public:
    /// The colours of the note and of a message.
    struct Colors {
        QColor note;
        QColor message;
    };

    NoteLine(const QString& note, const TextStyle& style, const Colors& colors, QWidget* parent);

    /// Shows the message and announces it to assistive technology.
    void setMessage(const QString& message);
    /// Brings the note back.
    void clearMessage();

    QSize sizeHint() const override { return {0, height_}; }
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString note_;
    TextStyle style_;
    Colors colors_;
    int height_; ///< of the note, so that a message moves nothing
    QString message_;
    QTimer messageTimer_;
};

} // namespace velmora

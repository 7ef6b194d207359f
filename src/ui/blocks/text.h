#pragma once

#include "ui/look/type.h"

#include <QColor>
#include <QWidget>

#include <array>

namespace velmora {

/// A paragraph in one style, wrapped to the widget's width.
class Text : public QWidget {
    Q_OBJECT

public:
    Text(const QString& text, const TextStyle& style, const QColor& color, QWidget* parent);

    const QString& text() const { return text_; }
    void setText(const QString& text);
    void setStyle(const TextStyle& style);
    void setColor(const QColor& color);
    void setAlignment(Qt::Alignment alignment);
    /// Cuts longer text with an ellipsis and shows it in full in a tooltip; 0 for any number of lines.
    void setMaximumLines(int lines);
    /// Maximum width of a line in pixels; 0 for the widget's width.
    void setWrapWidth(int width);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return maximumLines_ != 1; }
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    const QStringList& lines(int width) const;
    void updateToolTip();

    QString text_;
    TextStyle style_;
    QColor color_;
    Qt::Alignment alignment_ = Qt::AlignLeft;
    int maximumLines_ = 0;
    int wrapWidth_ = 0;
    /// Cached results of lines(), the newest first; layouts ask for two widths in turn.
    struct Broken {
        int width = -1; ///< -1 if the lines are out of date
        QStringList lines;
    };
    mutable std::array<Broken, 2> broken_;
};

/// The small upper-case label above a headline.
class Eyebrow : public Text {
public:
    Eyebrow(const QString& text, bool dark, QWidget* parent);
};

/// A secondary label.
class Label2 : public Text {
public:
    Label2(const QString& text, bool dark, QWidget* parent);
};

} // namespace velmora

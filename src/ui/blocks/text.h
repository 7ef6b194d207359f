#pragma once

#include "ui/look/type.h"

#include <QColor>
#include <QWidget>

namespace velmora {

/// A paragraph in one style, broken to its width.
class Text : public QWidget {
    Q_OBJECT

public:
    Text(const QString& text, const TextStyle& style, const QColor& color, QWidget* parent);

    const QString& text() const { return text_; }
    void setText(const QString& text);
    void setColor(const QColor& color);
    void setAlignment(Qt::Alignment alignment);
    /// What does not fit into so many lines ends in an ellipsis and is told by a tooltip. 0: any number.
    void setMaximumLines(int lines);
    /// Breaks lines earlier than at the widget's own width, pixels; 0 for no such limit.
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
    void tellWhatIsCut();

    QString text_;
    TextStyle style_;
    QColor color_;
    Qt::Alignment alignment_ = Qt::AlignLeft;
    int maximumLines_ = 0;
    int wrapWidth_ = 0;
    mutable QStringList lines_;   ///< as broken last
    mutable int linesWidth_ = -1; ///< that they were broken to; -1 for none
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

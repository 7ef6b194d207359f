#pragma once

#include "ui/look/type.h"

#include <QWidget>

#include <vector>

namespace velmora {

/// A sentence in three runs; the middle one is drawn with the gradient. Line breaks are kept.
struct Sentence {
    QString lead;
    QString emphasis;
    QString tail;

    /// From a text with asterisks around the emphasis: "Your grounds are *watched*."
    static Sentence marked(const QString& text);

    bool operator==(const Sentence&) const = default;
};

/// A headline, wrapped to the widget's width.
class Headline : public QWidget {
    Q_OBJECT

public:
    Headline(const Sentence& sentence, const TextStyle& style, bool dark, QWidget* parent);

    void setSentence(const Sentence& sentence);
    void setStyle(const TextStyle& style);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// A part of one run that fits on one line.
    struct Piece {
        QString text;
        bool emphasised = false;
        double x = 0;
        int line = 0;
    };

    std::vector<Piece> words() const;
    std::vector<Piece> pieces(double width) const;
    void describe();

    Sentence sentence_;
    TextStyle style_;
    bool dark_;
};

} // namespace velmora

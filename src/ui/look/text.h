#pragma once

#include "ui/look/type.h"

#include <QColor>
#include <QPainter>

#include <vector>

namespace velmora {

/// The font of a style, with its tracking.
QFont fontOf(const TextStyle& style);

/// Width of one line in pixels, without tracking after its last letter.
double textWidth(const QString& text, const TextStyle& style);
/// Distance in pixels from the start of a text to the start of the text after it: with tracking after its
/// last letter, and digits that are not tabular.
double advanceOf(const QString& text, const TextStyle& style);

/// Distance from the left edge of a single character's cell to its ink, pixels.
double bearingOf(QChar character, const TextStyle& style);

/// The text, or as much of its start as fits into the width, with an ellipsis.
QString elided(const QString& text, const TextStyle& style, double width);

/// Draws text from a point on its baseline.
void drawRun(QPainter& painter, QPointF baseline, const QString& text, const TextStyle& style,
             const QBrush& color);

/// A stroke behind the letters, so that they can be read on a picture.
struct TextEdge {
    QColor color;
    double width = 0; ///< pixels, half of it outside the letters; 0 for none
};

/// Draws one line into the rectangle, elided if it is too long. Vertical alignment uses the style's line
/// height.
void drawText(QPainter& painter, const QRectF& rect, const QString& text, const TextStyle& style,
              const QBrush& color, Qt::Alignment alignment, const TextEdge& edge = {});

/// A part of a line that has its own style.
struct TextRun {
    QString text;
    TextStyle style;
    QColor color;

    bool operator==(const TextRun&) const = default;
};

/// The text of the complete line.
QString textOf(const std::vector<TextRun>& runs);
/// Width of the line in pixels.
double textWidth(const std::vector<TextRun>& runs);
/// Draws the runs one after another, vertically centred in the rectangle and elided at its right end.
void drawRuns(QPainter& painter, const QRectF& rect, const std::vector<TextRun>& runs);

/// Text for a tooltip. QToolTip renders text that looks like mark-up, so this escapes it: text from a server
/// must appear literally.
QString plainToolTip(const QString& text);

/// Distance from the top of a line to its baseline, pixels.
double baselineOf(const TextStyle& style);

/// Breaks the text into lines of at most `width` pixels. Text that does not fit into `maximumLines` (0: any
/// number) ends in an ellipsis.
QStringList brokenIntoLines(const QString& text, const TextStyle& style, double width, int maximumLines = 0);

} // namespace velmora

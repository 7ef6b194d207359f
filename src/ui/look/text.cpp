#include "ui/look/text.h"

#include <QCache>
#include <QFontMetricsF>
#include <QHash>
#include <QPaintEngine>
#include <QPainterPath>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr double fitTolerance = 0.5; // pixels; tolerance when a text is fitted into its own measured width
constexpr double layoutSize = 2048;  // pixels; so large that rounding to a pixel does not matter

/// The font of layouts and outlines, because Qt rounds sizes and advances to pixels. All sizes share it,
/// because Qt takes about a millisecond to prepare a font.
QFont enlargedFontOf(const TextStyle& style) {
    QFont font = SBFont::font(style.face, layoutSize);
    font.setLetterSpacing(QFont::AbsoluteSpacing, style.tracking * layoutSize / style.size);
    return font;
}

double enlargementOf(const TextStyle& style) {
    return layoutSize / style.size;
}

/// What a text of one style is cached by, with the width of a stroke along its outlines.
using TextKey = std::pair<std::pair<std::pair<int, double>, std::pair<double, double>>, QString>;

TextKey keyOf(const QString& text, const TextStyle& style, double edge = 0) {
    return {{{static_cast<int>(style.face), style.size}, {style.tracking, edge}}, text};
}

} // namespace

/// Cached, because a text is measured whenever it is painted, and shaping it takes longer than painting it.
double advanceOf(const QString& text, const TextStyle& style) {
    constexpr int mostTexts = 2000; // about 0.5 MB
    static QCache<TextKey, double> cache(mostTexts);
    const TextKey key = keyOf(text, style);
    if (const double* known = cache.object(key))
        return *known;
    const double advance =
        QFontMetricsF(enlargedFontOf(style)).horizontalAdvance(text) / enlargementOf(style);
    cache.insert(key, new double(advance));
    return advance;
}

namespace {

QString cased(const QString& text, const TextStyle& style) {
    return style.upperCase ? text.toUpper() : text;
}

bool isAsciiDigit(QChar character) {
    return character >= '0' && character <= '9';
}

bool isRightToLeft(QChar character) {
    return character.direction() == QChar::DirR || character.direction() == QChar::DirAL;
}

/// Excludes right-to-left text, which reorders digits and letters.
bool isTabular(const QString& text, const TextStyle& style) {
    return style.tabular && std::ranges::none_of(text, isRightToLeft);
}

/// Calls `draw` with the offset and text of each piece: a digit centred in a cell as wide as "0", or the text
/// between two digits. Returns the width of the line in pixels.
template <class Draw>
double layoutTabular(const QString& text, const TextStyle& style, Draw draw) {
    const double cell = advanceOf(QStringLiteral("0"), style);
    double x = 0;
    for (auto from = text.begin(); from != text.end();) {
        const bool digit = isAsciiDigit(*from);
        const auto to = digit ? from + 1 : std::find_if(from, text.end(), isAsciiDigit);
        const QString piece(from, to - from);
        const double advance = advanceOf(piece, style);
        draw(digit ? x + (cell - advance) / 2 : x, piece);
        x += digit ? cell : advance;
        from = to;
    }
    return text.isEmpty() ? 0 : x - style.tracking;
}

double casedWidth(const QString& text, const TextStyle& style) {
    if (text.isEmpty())
        return 0;
    if (isTabular(text, style))
        return layoutTabular(text, style, [](double, const QString&) {});
    return advanceOf(text, style) - style.tracking;
}

QString casedElided(const QString& text, const TextStyle& style, double width) {
    if (casedWidth(text, style) <= width + fitTolerance)
        return text;
    return QFontMetricsF(enlargedFontOf(style))
        .elidedText(text, Qt::ElideRight, std::max(width, 0.0) * enlargementOf(style));
}

/// False for text with emoji, which are pictures without outlines.
bool hasOutlines(const QString& text) {
    return std::ranges::none_of(text, [](QChar character) { return character.isSurrogate(); });
}

} // namespace

QFont fontOf(const TextStyle& style) {
    QFont font = SBFont::font(style.face, style.size);
    font.setLetterSpacing(QFont::AbsoluteSpacing, style.tracking);
    return font;
}

double textWidth(const QString& text, const TextStyle& style) {
    return casedWidth(cased(text, style), style);
}

QString elided(const QString& text, const TextStyle& style, double width) {
    return casedElided(cased(text, style), style, width);
}

double baselineOf(const TextStyle& style) {
    struct Extent {
        double ascent, descent; ///< pixels at the size of layouts
    };
    static QHash<int, Extent> extents; ///< by face
    auto extent = extents.constFind(static_cast<int>(style.face));
    if (extent == extents.constEnd()) {
        const QFontMetricsF metrics(enlargedFontOf(style));
        extent = extents.insert(static_cast<int>(style.face), {metrics.ascent(), metrics.descent()});
    }
    return (style.line + (extent->ascent - extent->descent) / enlargementOf(style)) / 2;
}

namespace {

/// The path of a stroke of this width along the outlines.
QPainterPath strokeOf(const QPainterPath& outlines, double width) {
    QPainterPathStroker stroker(QPen(Qt::black, width, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    QPainterPath stroke = stroker.createStroke(outlines);
    stroke.setFillRule(Qt::WindingFill);
    return stroke;
}

/// The outlines of a text whose baseline begins at the origin, or a stroke of the width `edge` along them.
/// Cached, because shaping and reading outlines takes longer than filling them, and most texts are painted
/// many times.
QPainterPath outlinesOf(const QString& text, const TextStyle& style, double edge = 0) {
    constexpr int mostElements = 40'000; // about 1 MB
    static QCache<TextKey, QPainterPath> cache(mostElements);
    const TextKey key = keyOf(text, style, edge);
    if (const QPainterPath* known = cache.object(key))
        return *known;
    QPainterPath outlines;
    outlines.setFillRule(Qt::WindingFill);
    outlines.addText({}, enlargedFontOf(style), text);
    const double reduction = 1 / enlargementOf(style);
    outlines = QTransform::fromScale(reduction, reduction).map(outlines);
    if (edge > 0)
        outlines = strokeOf(outlines, edge);
    cache.insert(key, new QPainterPath(outlines), outlines.elementCount() + 1);
    return outlines;
}

} // namespace

double bearingOf(QChar character, const TextStyle& style) {
    double cell = 0;
    layoutTabular(character, style, [&](double offset, const QString&) { cell = offset; });
    return cell + outlinesOf(character, style).boundingRect().left();
}

namespace {

/// Ends of the pieces that a text is drawn in: letters together, digits together, any other character alone.
/// The typeface has other shapes for signs beside digits and capitals, such as a raised colon, and a document
/// does not know the character of such a shape.
std::vector<qsizetype> pieceEnds(const QString& text) {
    if (std::ranges::any_of(text, isRightToLeft))
        return {text.size()};
    const auto kind = [](QChar character) {
        return character.isLetter() || character.isSpace() || character.isMark() ? 1
               : isAsciiDigit(character)                                         ? 2
                                                                                 : 0;
    };
    std::vector<qsizetype> ends;
    for (qsizetype i = 1; i <= text.size(); ++i)
        if (i == text.size() || kind(text[i]) == 0 || kind(text[i]) != kind(text[i - 1]))
            ends.push_back(i);
    return ends;
}

/// In the enlarged font, because Qt rounds the size of the other one.
void drawAsText(QPainter& painter, QPointF baseline, const QString& text, const TextStyle& style,
                const QBrush& color) {
    const double enlargement = enlargementOf(style);
    painter.save();
    painter.translate(baseline);
    painter.scale(1 / enlargement, 1 / enlargement);
    painter.setFont(enlargedFontOf(style));
    painter.setPen(QPen(color, 0));
    double x = 0;
    qsizetype from = 0;
    for (const qsizetype end : pieceEnds(text)) {
        const QString piece = text.mid(from, end - from);
        painter.drawText(QPointF(x * enlargement, 0), piece);
        x += advanceOf(piece, style);
        from = end;
    }
    painter.restore();
}

/// Readers of a document take letters that are wider apart for words.
TextStyle styleFor(const QPainter& painter, const TextStyle& style) {
    constexpr double widest = 0.07; // of the size
    TextStyle adapted = style;
    if (painter.paintEngine()->type() == QPaintEngine::Pdf)
        adapted.tracking = std::min(style.tracking, widest * style.size);
    return adapted;
}

} // namespace

/// On pixels, fills outlines instead of drawing glyphs, because FreeType draws the stems of this typeface one
/// weight too thick. Any other device gets text, which can be selected and searched.
void drawRun(QPainter& painter, QPointF baseline, const QString& text, const TextStyle& style,
             const QBrush& color) {
    const QPaintEngine::Type device = painter.paintEngine()->type();
    if (device == QPaintEngine::Pdf) {
        drawAsText(painter, baseline, text, style, color);
    } else if (!hasOutlines(text) || device != QPaintEngine::Raster) {
        painter.setFont(fontOf(style));
        painter.setPen(QPen(color, 0));
        painter.drawText(baseline, text);
    } else {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillPath(outlinesOf(text, style).translated(baseline), color);
    }
}

namespace {

void drawEdge(QPainter& painter, QPointF baseline, const QString& text, const TextStyle& style,
              const TextEdge& edge) {
    if (edge.width <= 0 || !hasOutlines(text))
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(outlinesOf(text, style, edge.width).translated(baseline), edge.color);
}

} // namespace

void drawText(QPainter& painter, const QRectF& rect, const QString& text, const TextStyle& wanted,
              const QBrush& color, Qt::Alignment alignment, const TextEdge& edge) {
    const TextStyle style = styleFor(painter, wanted);
    const QString shown = elided(text, style, rect.width());
    const double width = casedWidth(shown, style);
    double x = rect.left(), top = rect.top();
    if (alignment & Qt::AlignRight)
        x = rect.right() - width;
    else if (alignment & Qt::AlignHCenter)
        x = rect.center().x() - width / 2;
    if (alignment & Qt::AlignBottom)
        top = rect.bottom() - style.line;
    else if (alignment & Qt::AlignVCenter)
        top = rect.center().y() - style.line / 2;

    const double baseline = std::round(top + baselineOf(style));
    if (!isTabular(shown, style)) {
        drawEdge(painter, {x, baseline}, shown, style, edge);
        drawRun(painter, {x, baseline}, shown, style, color);
        return;
    }
    layoutTabular(shown, style, [&](double offset, const QString& piece) {
        drawEdge(painter, {x + offset, baseline}, piece, style, edge);
        drawRun(painter, {x + offset, baseline}, piece, style, color);
    });
}

QString textOf(const std::vector<TextRun>& runs) {
    QString text;
    for (const TextRun& run : runs)
        text += run.text;
    return text;
}

double textWidth(const std::vector<TextRun>& runs) {
    double width = 0;
    for (const TextRun& run : runs)
        width += textWidth(run.text, run.style);
    return width;
}

void drawRuns(QPainter& painter, const QRectF& rect, const std::vector<TextRun>& runs) {
    QRectF rest = rect;
    for (const TextRun& run : runs) {
        const double width = textWidth(run.text, run.style);
        drawText(painter, rest, run.text, run.style, run.color, Qt::AlignVCenter);
        if (width > rest.width() + fitTolerance)
            return;
        rest.setLeft(rest.left() + width);
    }
}

QString plainToolTip(const QString& text) {
    return Qt::mightBeRichText(text) ? QStringLiteral("<span>%1</span>").arg(text.toHtmlEscaped()) : text;
}

QStringList brokenIntoLines(const QString& text, const TextStyle& style, double width, int maximumLines) {
    const QString shown = cased(text, style);
    QTextLayout layout(shown, enlargedFontOf(style));
    layout.beginLayout();
    QStringList lines;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth((width + fitTolerance) * enlargementOf(style));
        if (maximumLines > 0 && lines.size() + 1 == maximumLines) {
            lines.append(casedElided(shown.mid(line.textStart()).trimmed(), style, width));
            break;
        }
        lines.append(shown.mid(line.textStart(), line.textLength()).trimmed());
    }
    layout.endLayout();
    return lines;
}

} // namespace velmora

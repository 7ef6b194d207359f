#pragma once

#include "ui/look/type.h"

#include <QPageSize>
#include <QPainter>

class QPdfWriter;

namespace velmora {

/// Text styles that only reports use.
namespace ReportType {

using SBFont::Face;

inline constexpr TextStyle name{Face::displaySemiBold, 16, 22, -0.2};
inline constexpr TextStyle caption{Face::regular, 10, 14};
inline constexpr TextStyle foot{Face::regular, 9.5, 14};
inline constexpr TextStyle fact{Face::displayMedium, 24, 28, -0.3}; // digits of their own widths stay text

} // namespace ReportType

/// The pages of a report, in pixels at 96 dpi. Without a PDF it draws nothing, but takes the same room, so
/// that pages can be counted before they are drawn.
class ReportPages {
public:
    /// The texts at the edges of a page.
    struct Frame {
        QString heading; ///< at the top right
        QString foot;    ///< about what, and who made it
        QString source;  ///< below it: where the facts come from
    };

    static constexpr double margin = 48;
    static constexpr double top = 90; ///< of the content, below the head

    /// Only counts.
    explicit ReportPages(const QPageSize& paper);
    /// Draws the pages of a document with this number of pages.
    ReportPages(const QPageSize& paper, QPdfWriter& pdf, int total);

    /// Begins a page with its head and foot.
    void begin(const Frame& frame);
    /// Begins another page with the same head and foot.
    void next() { begin(frame_); }
    /// Pages begun so far.
    int count() const { return count_; }

    static double left() { return margin; }
    double right() const { return size_.width() - margin; }
    double width() const { return right() - left(); }
    /// Where the content ends.
    double bottom() const;

    /// The painter of the current page; null while counting.
    QPainter* painter() { return painter_.isActive() ? &painter_ : nullptr; }
    /// Draws one line, elided to the rectangle's width.
    void line(const QRectF& rect, const QString& text, const TextStyle& style, const QColor& color,
              Qt::Alignment alignment = Qt::AlignLeft);
    /// Draws wrapped text from the rectangle's top, elided after `maximumLines`. Returns where it ends.
    double paragraph(const QRectF& column, const QString& text, const TextStyle& style, const QColor& color,
                     int maximumLines = 8);
    void hairline(double y);
    void hairline(double y, double from, double to);
    /// Finishes the document.
    void end();

private:
    void drawFrame();

    QSizeF size_;
    QPdfWriter* pdf_ = nullptr;
    QPainter painter_;
    Frame frame_;
    int count_ = 0;
    int total_ = 0;
};

} // namespace velmora

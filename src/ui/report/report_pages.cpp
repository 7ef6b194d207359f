#include "ui/report/report_pages.h"

#include "ui/blocks/wordmark.h"
#include "ui/look/measures.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"
#include "ui/report/report_paper.h"
#include "ui/report/report_words.h"

#include <QPdfWriter>

namespace velmora {

namespace {

constexpr double shield = 22, shieldTop = 38, headLine = 74;
constexpr double footLine = 53, footTop = 46; // above the page's lower edge
constexpr double footGap = 8;                 // between content and foot

} // namespace

ReportPages::ReportPages(const QPageSize& paper) : size_(paper.size(QPageSize::Inch) * double(reportDpi)) {}

ReportPages::ReportPages(const QPageSize& paper, QPdfWriter& pdf, int total) : ReportPages(paper) {
    pdf_ = &pdf;
    total_ = total;
}

double ReportPages::bottom() const {
    return size_.height() - footLine - footGap;
}

void ReportPages::begin(const Frame& frame) {
    frame_ = frame;
    ++count_;
    if (!pdf_)
        return;
    if (count_ == 1)
        painter_.begin(pdf_);
    else
        pdf_->newPage();
    painter_.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    drawFrame();
}

void ReportPages::drawFrame() {
    const QRectF sign(left() - shield / 10, shieldTop, shield, shield); // its square has an empty edge
    paintShield(painter_, sign);
    const double middle = sign.center().y() - ReportType::name.line / 2;
    line({sign.right() + Measure::gap8, middle, width(), ReportType::name.line}, QStringLiteral("Velmora"),
         ReportType::name, SB::ink);
    line({left(), sign.center().y() - Type::eyebrow.line / 2, width(), Type::eyebrow.line}, frame_.heading,
         Type::eyebrow, SB::muted, Qt::AlignRight);
    hairline(headLine);

    hairline(size_.height() - footLine);
    QRectF row(left(), size_.height() - footTop, width(), ReportType::foot.line);
    const QString page = pageNumber(count_, total_);
    line(row, page, ReportType::foot, SB::muted, Qt::AlignRight);
    line(row.adjusted(0, 0, -textWidth(page, ReportType::foot) - Measure::gap16, 0), frame_.foot,
         ReportType::foot, SB::muted);
    line(row.translated(0, row.height()), frame_.source, ReportType::foot, SB::muted);
}

void ReportPages::line(const QRectF& rect, const QString& text, const TextStyle& style, const QColor& color,
                       Qt::Alignment alignment) {
    if (QPainter* on = painter())
        drawText(*on, rect, text, style, color, alignment);
}

double ReportPages::paragraph(const QRectF& column, const QString& text, const TextStyle& style,
                              const QColor& color, int maximumLines) {
    QRectF row(column.left(), column.top(), column.width(), style.line);
    for (const QString& part : brokenIntoLines(text, style, column.width(), maximumLines)) {
        line(row, part, style, color);
        row.translate(0, style.line);
    }
    return row.top();
}

void ReportPages::hairline(double y) {
    hairline(y, left(), right());
}

void ReportPages::hairline(double y, double from, double to) {
    if (QPainter* on = painter())
        on->fillRect(QRectF(from, y, to - from, 1), SB::rule);
}

void ReportPages::end() {
    painter_.end();
}

} // namespace velmora

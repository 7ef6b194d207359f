#include "ui/screens/history/record_delegate.h"

#include "model/mission_evidence.h"
#include "ui/blocks/badge.h"
#include "ui/blocks/status_dot.h"
#include "ui/look/paint.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"
#include "ui/screens/history/history_model.h"
#include "ui/screens/history/path_thumbnail.h"
#include "ui/screens/outcomes.h"

#include <QCoreApplication>

#include <algorithm>

namespace velmora {

namespace {

QString factsOf(const MissionRecord& record) {
    QStringList facts{isolated(toQString(record.cameraName)),
                      timeOfDay(record.start).chopped(3)}; // without the seconds
    if (durationOf(record) >= 1)
        facts.append(duration(Seconds{durationOf(record)}));
    return facts.join(QStringLiteral(" · "));
}

void paintSelection(QPainter& painter, const QRectF& row) {
    fillRounded(painter, row, Measure::buttonRadius, SB::panel);
    const QRectF bar(row.left(), row.top() + Measure::gap12, Measure::selectionBar,
                     row.height() - 2 * Measure::gap12);
    QLinearGradient gradient(bar.topLeft(), bar.bottomLeft());
    gradient.setStops(SB::gradientLight(0, 1).stops());
    fillRounded(painter, bar, Measure::selectionBar / 2.0, gradient);
}

/// Paints the path thumbnail at the right, and above it the badge of a demo visit. Returns the width used, in
/// pixels.
double paintThumbnail(QPainter& painter, const QRectF& inner, const MissionRecord& record) {
    QRectF thumbnail({}, QSizeF(Measure::thumbnail));
    thumbnail.moveCenter(inner.center());
    thumbnail.moveRight(inner.right());
    double width = thumbnail.width();
    if (record.demo) {
        thumbnail.translate(0, (Measure::badgeHeight + Measure::gap4) / 2.0);
        const double middle = thumbnail.top() - Measure::gap4 - Measure::badgeHeight / 2.0;
        width = std::max(width, paintBadge(painter, inner.right(), middle,
                                           QCoreApplication::translate("History", "Demo")));
    }
    paintPathThumbnail(painter, thumbnail, record);
    return width;
}

void paintRecord(QPainter& painter, const QRectF& row, const MissionRecord& record, bool selected) {
    if (selected)
        paintSelection(painter, row);
    const QRectF inner = row.adjusted(Measure::recordInset, 0, -Measure::recordInset, 0);
    const double thumbnailWidth = paintThumbnail(painter, inner, record);
    const QRectF textArea = inner.adjusted(Measure::activityTitleX, 0, -thumbnailWidth - Measure::gap8, 0);
    QRectF title(textArea.left(), row.top() + Measure::recordTitleTop, textArea.width(), Type::rowTitle.line);
    paintStatusDot(painter, {inner.left() + Measure::activityDotX, title.center().y()},
                   {.color = outcomeColor(record.outcome), .diameter = Measure::statusDotInRow});
    drawText(painter, title, outcomeText(record.outcome), Type::rowTitle, SB::ink, Qt::AlignVCenter);

    const QRectF facts(textArea.left(), title.bottom(), textArea.width(), Type::label2.line);
    drawText(painter, facts, factsOf(record), Type::label2, SB::muted, Qt::AlignVCenter);
}

} // namespace

RecordDelegate::RecordDelegate(const HistoryModel& model, QObject* parent)
    : QAbstractItemDelegate(parent), model_(model) {}

QSize RecordDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex& index) const {
    return {0, model_.recordAt(index) ? Measure::recordRow : Measure::dayRow};
}

void RecordDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const QRectF row(option.rect);
    if (const MissionRecord* record = model_.recordAt(index)) {
        paintRecord(*painter, row, *record, option.state & QStyle::State_Selected);
    } else {
        const QRectF caption = row.adjusted(Measure::recordInset, 0, 0, -Measure::gap4);
        drawText(*painter, caption, index.data(HistoryModel::captionRole).toString(), Type::caption,
                 SB::muted, Qt::AlignBottom);
    }
    painter->restore();
}

} // namespace velmora

#include "ui/screens/history/record_delegate.h"

#include "language/language.h"
#include "model/mission_evidence.h"
#include "ui/blocks/badge.h"
#include "ui/blocks/status_dot.h"
#include "ui/charts/outcomes.h"
#include "ui/look/paint.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"
#include "ui/screens/history/history_model.h"
#include "ui/screens/history/path_thumbnail.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QToolTip>

namespace velmora {

namespace {

const QString between = QStringLiteral(" · ");

QString factsOf(const MissionRecord& record) {
    QStringList facts{isolated(shownText(record.cameraName)),
                      timeOfDay(record.start).chopped(3)}; // without the seconds
    if (durationOf(record) >= 1)
        facts.append(duration(Seconds{durationOf(record)}));
    return facts.join(between);
}

void paintSelection(QPainter& painter, const QRectF& row) {
    fillRounded(painter, row, Measure::buttonRadius, SB::panel);
    const QRectF bar(row.left(), row.top() + Measure::gap12, Measure::selectionBar,
                     row.height() - 2 * Measure::gap12);
    QLinearGradient gradient(bar.topLeft(), bar.bottomLeft());
    gradient.setStops(SB::gradientLight(0, 1).stops());
    fillRounded(painter, bar, Measure::selectionBar / 2.0, gradient);
}

/// One line of text in a record's row.
struct Line {
    QString text;
    TextStyle style;
    QColor color;
    QRectF rect;

    /// Without the last fact if that does not fit: a part of a duration would read as another one.
    QString shown() const {
        const QString shorter = text.section(between, 0, 1);
        return textWidth(text, style) > rect.width() ? elided(shorter, style, rect.width()) : text;
    }
};

/// The parts of a record's row and where they are.
struct RecordRow {
    RecordRow(const QRectF& row, const MissionRecord& record);

    QPointF dot;
    Line title, facts;
    QRectF thumbnail; ///< null if the drone did not fly
    QString badge;    ///< empty if there is none
    double badgeRight = 0;
};

/// The thumbnail and the badge are level with the second line, so the first line has the full width.
RecordRow::RecordRow(const QRectF& row, const MissionRecord& record) {
    const bool narrow = row.width() < Measure::historyPaneNarrow;
    const QRectF inner = row.adjusted(Measure::recordInset, 0, -Measure::recordInset, 0);
    const QRectF words = inner.adjusted(Measure::activityTitleX, 0, 0, 0);
    title = {outcomeText(record.outcome), narrow ? Type::compactRow : Type::rowTitle, SB::ink,
             QRectF(words.left(), row.top() + Measure::recordTitleTop, words.width(), Type::rowTitle.line)};
    dot = {inner.left() + Measure::activityDotX, title.rect.center().y()};
    double right = inner.right();
    if (flew(record.outcome)) {
        thumbnail = QRectF({}, QSizeF(Measure::thumbnail));
        thumbnail.moveTopRight({right, row.top() + Measure::thumbnailTop});
        right = thumbnail.left() - Measure::gap8;
    }
    badgeRight = right;
    if (record.demo) {
        badge = Words::tr("Demo");
        right -= badgeWidth(badge) + Measure::gap8;
    }
    facts = {factsOf(record), Type::label2, SB::muted,
             QRectF(words.left(), title.rect.bottom(), right - words.left(), Type::label2.line)};
}

void paintRecord(QPainter& painter, const QRectF& area, const MissionRecord& record, bool selected) {
    if (selected)
        paintSelection(painter, area);
    const RecordRow row(area, record);
    paintStatusDot(painter, row.dot,
                   {.color = outcomeColor(record.outcome), .diameter = Measure::statusDotInRow});
    for (const Line& line : {row.title, row.facts})
        drawText(painter, line.rect, line.shown(), line.style, line.color, Qt::AlignVCenter);
    if (!row.thumbnail.isNull())
        paintPathThumbnail(painter, row.thumbnail, record);
    if (!row.badge.isEmpty())
        paintBadge(painter, row.badgeRight,
                   area.top() + Measure::thumbnailTop + Measure::thumbnail.height() / 2.0, row.badge);
}

/// The lines of the row that do not fit, in full.
QString cutText(const RecordRow& row) {
    QStringList cut;
    for (const Line& line : {row.title, row.facts})
        if (line.shown() != line.text)
            cut.append(line.text);
    return cut.join('\n');
}

} // namespace

RecordDelegate::RecordDelegate(const HistoryModel& model, QObject* parent)
    : QAbstractItemDelegate(parent), model_(model) {}

QSize RecordDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex& index) const {
    return {0, model_.recordAt(index) ? Measure::recordRow : Measure::dayRow};
}

bool RecordDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                               const QModelIndex& index) {
    if (event->type() != QEvent::ToolTip)
        return false;
    const MissionRecord* record = model_.recordAt(index);
    const QString cut = record ? cutText(RecordRow(option.rect, *record)) : QString();
    QToolTip::showText(event->globalPos(), plainToolTip(cut), view->viewport(), option.rect);
    return true;
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

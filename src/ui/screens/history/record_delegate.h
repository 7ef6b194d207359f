#pragma once

#include <QAbstractItemDelegate>

namespace velmora {

class HistoryModel;

/// Paints the rows of the history list: day captions, and records with outcome, facts and, if the drone flew,
/// a path thumbnail. Texts that do not fit have a tooltip.
class RecordDelegate : public QAbstractItemDelegate {
    Q_OBJECT

public:
    RecordDelegate(const HistoryModel& model, QObject* parent);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

private:
    const HistoryModel& model_;
};

} // namespace velmora

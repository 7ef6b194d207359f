#pragma once

#include <QAbstractItemDelegate>

namespace velmora {

class HistoryModel;

/// Paints the list's rows: day captions, and records with their outcome, their facts and a thumbnail of the
/// paths.
class RecordDelegate : public QAbstractItemDelegate {
    Q_OBJECT

public:
    RecordDelegate(const HistoryModel& model, QObject* parent);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    const HistoryModel& model_;
};

} // namespace velmora

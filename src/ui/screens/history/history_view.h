#pragma once

#include "ui/look/ui_clock.h"
#include "ui/screens/screen.h"

#include <functional>

namespace velmora {

class HistoryList;
class RecordDetail;
class SBButton;

/// History: every visit on record, and one of them in detail.
class HistoryView : public Screen {
    Q_OBJECT

public:
    HistoryView(AppStore& store, QWidget* parent);

    /// Gives the search field the keyboard.
    void focusSearch();
    /// Gives the records the keyboard.
    void focusRecords();

signals:
    /// "Clear demo history" was pressed; nothing goes before the owner confirms.
    void clearDemoRequested();
    /// An export was not written; a sentence that says which file and why.
    void exportFailed(const QString& why);

protected:
    void refresh() override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    QWidget* buildEmpty();
    void showSelection();
    void remove(RecordKey key);
    std::optional<RecordKey> neighbour(RecordKey key) const;
    void offerExports(QPoint below);
    void saveAs(const QString& title, const QString& name, const QString& filter,
                std::function<QString(const QString& path)> write);

    HistoryList* list_;
    RecordDetail* detail_;
    SBButton* simulate_ = nullptr;
    QWidget* empty_;
    UiTimer everyMinute_{std::chrono::minutes(1)}; ///< while shown: another day may have begun
};

} // namespace velmora

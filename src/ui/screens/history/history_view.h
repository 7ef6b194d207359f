#pragma once

#include "ui/look/ui_clock.h"
#include "ui/screens/screen.h"

#include <functional>

namespace velmora {

class HistoryList;
class PatternsPane;
class RecordDetail;
class ReportJob;
struct ReportContent;
struct HistoryFilter;
class SBButton;

/// History: the list of recorded visits, and the selected one in detail or the patterns of all in the list.
class HistoryView : public Screen {
    Q_OBJECT

public:
    HistoryView(AppStore& store, QWidget* parent);

    /// Moves the keyboard focus to the search field.
    void focusSearch();
    /// Moves the keyboard focus to the records, or to the patterns.
    void focusContent();
    /// Shows the record, also if the filters hide it.
    void openRecord(RecordKey key);
    void openPatterns();

signals:
    /// The owner clicked "Clear demo history". Ask for confirmation before removing anything.
    void clearDemoRequested();
    /// An export failed; `why` is a sentence that names the file and the reason.
    void exportFailed(const QString& why);
    /// A report is being written, which takes a while.
    void reportStarted(velmora::ReportJob* job);

protected:
    void refresh() override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    QWidget* buildEmpty();
    void connectPatterns();
    void changeFilter(const std::function<void(HistoryFilter&)>& change);
    void showVisits(const std::function<void(HistoryFilter&)>& change);
    void showVisitsPast(P place);
    bool isListed(const std::optional<RecordKey>& record) const;
    void showParts();
    void showPatterns();
    void showSelection();
    void remove(RecordKey key);
    std::optional<RecordKey> neighbour(RecordKey key) const;
    struct Export {
        QString title;
        QString name;   ///< proposed for the file, without suffix
        QString suffix; ///< without a dot
        QString filter; ///< of the file dialog
    };
    /// Writes the file; returns an error text, or an empty one on success.
    using Write = std::function<QString(const QString& path)>;
    void offerExports(QRect above);
    /// Writes a report of the selected visit, or of the list with a cover.
    Write report();
    Write listReport();
    void startReport(const QString& path, ReportContent content);
    void saveAs(const Export& chosen, Write write);

    HistoryList* list_;
    RecordDetail* detail_;
    PatternsPane* patterns_;
    SBButton* simulate_ = nullptr;
    QWidget* nothingListed_; ///< in place of the detail
    QWidget* empty_;
};

} // namespace velmora

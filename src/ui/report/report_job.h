#pragma once

#include "store/export_file.h"
#include "ui/report/cover_page.h"

#include <QObject>
#include <QPdfWriter>
#include <QTimer>

#include <optional>

namespace velmora {

/// What one report holds.
struct ReportContent {
    QString title; ///< in the document's properties
    ReportSetting setting;
    std::vector<ReportVisit> visits; ///< in the order of their pages
    bool hasCover = false;
    QString selection; ///< how the visits were selected; empty for all
};

/// Draws a report in short steps on the event loop, so that the program stays usable and an alert is answered
/// as ever. Deletes itself when it is done. A report that is deleted before leaves the file unchanged.
class ReportJob : public QObject {
    Q_OBJECT

public:
    ReportJob(std::unique_ptr<ExportFile> file, ReportContent content, QObject* parent);
    ~ReportJob() override;

    void start();
    std::size_t visits() const { return content_.visits.size(); }

signals:
    /// `done` is the share of the work, 0 to 1.
    void progressed(double done);
    /// The file is complete if `error` is empty; otherwise it is unchanged, and the text names the reason.
    void finished(const QString& error);

private:
    /// What is done, in order.
    enum class Stage { counting, grounds, map, cover, visits };

    void step();
    bool work();
    double shareDone() const;
    bool countMore();
    bool drawMore();
    void layOutNext(ReportPages& pages);
    void layOutCover(ReportPages& pages) const;
    void finish();

    std::unique_ptr<ExportFile> file_;
    ReportContent content_;
    ReportPictures pictures_;
    CoverPage cover_;
    QPdfWriter pdf_;
    ReportPages counted_;              ///< the same pages, only counted
    std::optional<ReportPages> drawn_; ///< once all are counted
    Stage stage_ = Stage::counting;
    std::size_t next_ = 0; ///< index of the next visit
    QTimer steps_;
};

} // namespace velmora

#pragma once

#include "store/app_store.h"

#include <QWidget>

#include <memory>

namespace velmora {

class Eyebrow;
class Headline;
class RecordFacts;
class ReplayBar;
class ReplayPlayer;
class SBButton;
class SiteMap;
class Text;

/// The right pane of the history: one record, replayed on the map and told below it.
class RecordDetail : public QWidget {
    Q_OBJECT

public:
    RecordDetail(AppStore& store, QWidget* parent);

    void setEntry(const HistoryEntry& entry);
    /// Never null.
    const std::shared_ptr<const MissionRecord>& record() const { return record_; }
    /// Gives the replay the keyboard.
    void focusReplay();
    void pause();
    /// The map with its replay as it stands, at twice its size.
    QPixmap mapPicture() const;

signals:
    void exportRequested(QPoint below);
    void deleteRequested();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    QWidget* buildHeading(QWidget* parent);
    void showMoment();
    void fitMap();

    AppStore& store_;
    std::optional<RecordKey> key_; ///< of the record shown
    std::shared_ptr<const MissionRecord> record_ = std::make_shared<MissionRecord>();
    ReplayPlayer* player_;
    Text* eyebrow_;
    Headline* title_;
    SBButton* export_;
    SiteMap* map_;
    ReplayBar* bar_;
    RecordFacts* facts_;
};

} // namespace velmora

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
class ScrollArea;
class SiteMap;
class Text;

/// The right pane of the history: one record with its replay on the map and its facts below.
class RecordDetail : public QWidget {
    Q_OBJECT

public:
    RecordDetail(AppStore& store, QWidget* parent);

    /// Shows the record, or what changed around it if it is shown already.
    void setEntry(const HistoryEntry& entry);
    /// The record shown; never null, empty before the first setEntry().
    const std::shared_ptr<const MissionRecord>& record() const { return record_; }
    /// Moves the keyboard focus to the replay.
    void focusReplay();
    void pause();
    /// Plays or pauses the replay.
    void togglePlaying();
    /// The map at the current replay position, at twice its size.
    QPixmap mapPicture() const;

signals:
    /// The menu belongs below this rectangle, in screen coordinates, and not right of it.
    void exportRequested(QRect above);
    void deleteRequested();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    QWidget* buildHeading(QWidget* parent);
    QWidget* buildReplay(QWidget* parent);
    void showMoment();
    void arrange();

    AppStore& store_;
    std::optional<RecordKey> key_; ///< of the record shown
    std::shared_ptr<const MissionRecord> record_ = std::make_shared<MissionRecord>();
    ReplayPlayer* player_;
    Text* eyebrow_;
    Headline* title_;
    SBButton* export_;
    QWidget* content_;
    ScrollArea* area_;
    SiteMap* map_;
    ReplayBar* bar_;
    RecordFacts* facts_;
};

} // namespace velmora

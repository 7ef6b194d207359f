#pragma once

#include "model/visit_patterns.h"
#include "store/app_store.h"

#include <QWidget>

namespace velmora {

class CountBars;
class Text;
class VisitMatrix;

/// "The last 30 days": how many visits there were, when they came and which cameras saw them. Rehearsed
/// visits count in demo mode only.
class LastDays : public QWidget {
    Q_OBJECT

public:
    LastDays(AppStore& store, QWidget* parent);

    /// Adds new visits to the figures. Computes all again if visits were removed or have become too old.
    void refresh();
    /// Sets the height that there is for the group, in pixels: it is shown from 200 on, with as many cameras
    /// as fit.
    void setRoom(int room);
    void setGapAbove(int gap);

protected:
    void showEvent(QShowEvent* event) override;

private:
    /// Visits that were counted, and how.
    struct Counted {
        std::size_t visits = 0; ///< of the history, also older ones
        RecordKey newest{};     ///< meaningless without visits
        bool withDemo = false;

        bool precede(const std::vector<HistoryEntry>& history) const;
    };

    bool count();
    void showFigures();
    void fitCameras();

    AppStore& store_;
    Text* sentence_;
    VisitMatrix* matrix_;
    CountBars* cameras_;
    int room_ = 0;
    std::optional<Counted> counted_;
    VisitPatterns patterns_{Site()};
};

} // namespace velmora

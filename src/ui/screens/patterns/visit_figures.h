#pragma once

#include "model/visit_patterns.h"
#include "model/walk_map.h"
#include "store/history.h"

namespace velmora {

/// The figures over a list of visits. They follow the list: more visits at its front are added to them, after
/// any other change all are computed.
class VisitFigures {
public:
    explicit VisitFigures(const Site& site);

    /// The visits are the newest first. Returns whether the figures changed.
    bool follow(const std::vector<HistoryEntry>& visits, const Site& site);

    const VisitPatterns& patterns() const { return patterns_; }
    WalkHeat heat() const { return walks_.heat(); }

private:
    void add(const HistoryEntry& visit);

    Site site_;
    VisitPatterns patterns_;
    WalkMap walks_;
    std::vector<RecordKey> added_; ///< oldest first
};

} // namespace velmora

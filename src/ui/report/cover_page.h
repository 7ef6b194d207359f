#pragma once

#include "model/visit_patterns.h"
#include "model/walk_map.h"
#include "ui/report/visit_pages.h"

#include <QImage>

namespace velmora {

/// The first page of a report of several visits: what they have in common. Each visit is added once.
class CoverPage {
public:
    explicit CoverPage(const Site& site) : patterns_(site), walked_(site) {}

    void add(const MissionRecord& record);
    /// Draws the map; call after all visits were added and before the page is laid out.
    void prepare(const ReportSetting& setting);
    /// `selection` tells how the visits were selected; empty for all.
    void layOut(ReportPages& pages, const ReportSetting& setting, const QString& selection) const;

private:
    VisitPatterns patterns_;
    WalkMap walked_;
    QImage map_;
    int mostVisits_ = 0; ///< on the map
};

} // namespace velmora

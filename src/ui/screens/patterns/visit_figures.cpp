#include "ui/screens/patterns/visit_figures.h"

#include <algorithm>

namespace velmora {

namespace {

bool isVisit(RecordKey key, const HistoryEntry& visit) {
    return visit.key == key;
}

} // namespace

VisitFigures::VisitFigures(const Site& site) : site_(site), patterns_(site), walks_(site) {}

bool VisitFigures::follow(const std::vector<HistoryEntry>& visits, const Site& site) {
    const bool siteChanged = site.size != site_.size || site.boundary != site_.boundary;
    const bool more = !siteChanged && visits.size() >= added_.size() &&
                      std::equal(added_.begin(), added_.end(), visits.rbegin(), isVisit);
    if (more && visits.size() == added_.size())
        return false;
    if (!more)
        *this = VisitFigures(site);
    for (auto visit = visits.rbegin() + static_cast<std::ptrdiff_t>(added_.size()); visit != visits.rend();
         ++visit)
        add(*visit);
    return true;
}

void VisitFigures::add(const HistoryEntry& visit) {
    patterns_.add(*visit.record);
    walks_.add(*visit.record);
    added_.push_back(visit.key);
}

} // namespace velmora

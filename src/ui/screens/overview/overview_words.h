#pragma once

#include "store/app_store.h"
#include "ui/blocks/headline.h"

namespace velmora {

/// One fact of a mission's banner.
struct MissionFact {
    QString text;
    bool warns = false; ///< drawn as a pill

    bool operator==(const MissionFact&) const = default;
};

/// The headline of the overview.
Sentence overviewHeadline(const AppStore& store);
/// The paragraph below the headline.
QString overviewLede(const AppStore& store);
/// What the banner of a mission tells beside its phase, most important first. Empty without a mission.
std::vector<MissionFact> missionFacts(const AppStore& store);

} // namespace velmora

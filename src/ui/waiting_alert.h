#pragma once

#include "store/app_store.h"

namespace velmora {

/// The mission whose alert waits for the owner's answer, so that an answer begun for one alert does not count
/// for the next; absent while none waits, empty for an alert without a mission.
inline std::optional<std::string> waitingAlert(const AppStore& store) {
    if (store.freshness() == Freshness::waiting || store.state().phase != Phase::awaitingApproval)
        return std::nullopt;
    return store.state().missionId.value_or("");
}

} // namespace velmora

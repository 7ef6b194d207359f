#pragma once

#include "store/app_store.h"

namespace velmora {

/// The alert that waits for the owner's answer, so that an answer begun for one does not count for the next;
/// absent while none waits.
inline std::optional<std::string> waitingAlert(const AppStore& store) {
    if (store.freshness() == Freshness::waiting || store.state().phase != Phase::awaitingApproval)
        return std::nullopt;
    return alertOf(store.state());
}

} // namespace velmora

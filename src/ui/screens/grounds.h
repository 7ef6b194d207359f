#pragma once

#include "store/app_store.h"

namespace velmora {

/// The state whose site is drawn under finished visits: the current one, or the demo's if none is known.
const LiveState& groundsFor(const AppStore& store);

} // namespace velmora

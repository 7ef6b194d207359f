#pragma once

#include "model/mission_record.h"
#include "model/settings.h"
#include "sim/random.h"

namespace velmora {

/// Three rehearsed missions of the past days, newest first, for an empty history. A mission that cannot be
/// rehearsed is left out.
std::vector<MissionRecord> rehearsedHistory(const Settings& settings, Date now, Random& random);

} // namespace velmora

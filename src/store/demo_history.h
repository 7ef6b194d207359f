#pragma once

#include "model/mission_record.h"
#include "model/settings.h"
#include "sim/random.h"

namespace velmora {

/// Three rehearsed missions of the past days, newest first, for a history that is still empty. One that
/// does not come to an end is left out.
std::vector<MissionRecord> rehearsedHistory(const Settings& settings, Date now, Random& random);

} // namespace velmora

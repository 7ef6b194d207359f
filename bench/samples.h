#pragma once

#include "model/live_state.h"
#include "model/mission_record.h"
#include "model/settings.h"

namespace velmora::samples {

/// Missions of the past, newest first, flown by the simulator; 200 of them make a document of about 6.2 MB.
std::vector<MissionRecord> flownHistory(std::size_t records);

/// What a server sends while the drone follows a visitor: full trails and 40 notices.
LiveState followingState();

/// The same with longer trails, which wind over the whole site, or with a site of more parts.
LiveState withTrails(LiveState state, std::size_t points);
LiveState withCameras(LiveState state, std::size_t cameras);
LiveState withBoundary(LiveState state, std::size_t points);

/// Settings of an owner who has been through the welcome.
Settings onboarded();

} // namespace velmora::samples

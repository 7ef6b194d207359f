#pragma once

#include "model/live_state.h"
#include "model/mission_record.h"
#include "model/settings.h"

namespace velmora::samples {

/// Simulated missions, newest first. 200 of them make a document of about 6.2 MB.
std::vector<MissionRecord> flownHistory(std::size_t records);

/// The state of a server while the drone follows a visitor, with full trails and 40 notices.
LiveState followingState();

/// The state with longer trails, which wind over the site, or with more cameras or boundary points.
LiveState withTrails(LiveState state, std::size_t points);
LiveState withCameras(LiveState state, std::size_t cameras);
LiveState withBoundary(LiveState state, std::size_t points);

/// Default settings with the welcome completed.
Settings onboarded();

} // namespace velmora::samples

#pragma once

#include "store/app_store.h"

namespace velmora::SelfCheck {

/// Whether VL_SNAPSHOT_DIR is set.
bool isRequested();

/// If requested, schedules a run through the main screens in demo mode, which saves nine pictures of the
/// window to that directory and quits after about a minute. Returns at once.
void runIfRequested(AppStore& store);

} // namespace velmora::SelfCheck

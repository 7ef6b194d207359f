#pragma once

#include "store/app_store.h"

namespace velmora::SelfCheck {

/// Whether VL_SNAPSHOT_DIR is set.
bool isRequested();

/// When requested: schedules a run through the main screens in demo mode that saves nine
/// pictures of the window into that directory and quits after about a minute. Returns at once.
void runIfRequested(AppStore& store);

} // namespace velmora::SelfCheck

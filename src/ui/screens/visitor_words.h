#pragma once

#include "model/live_state.h"

#include <QString>

namespace velmora {

/// "Front lawn camera"; "a camera" for an id that the site does not have.
QString visitorCamera(const Visitor& visitor, const Site& site);
/// The name of the camera's picture; empty for an id that the site does not have.
QString visitorPicture(const Visitor& visitor, const Site& site);
/// "88% sure it's no one you know"
QString certaintyText(const Visitor& visitor);

} // namespace velmora

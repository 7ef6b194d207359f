#pragma once

namespace velmora {

/// Whether translucent parts of a window show what lies below it: with X11 only while a compositing manager
/// runs. Asks the X server, so call it only now and then.
bool isComposited();

} // namespace velmora

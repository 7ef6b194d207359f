#pragma once

namespace velmora {

/// How far the live state can be believed.
enum class Freshness {
    live,   ///< the simulator's, or what the server said just now
    stale,  ///< the server has not answered for a while: the state is old
    unknown ///< the server has not answered yet: there is no state
};

} // namespace velmora

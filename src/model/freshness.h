#pragma once

namespace velmora {

/// How current the live state is.
enum class Freshness {
    live,   ///< from the simulator, or a recent answer of the server
    stale,  ///< the last answer of the server is too old
    unknown ///< no answer of the server yet, so there is no state
};

} // namespace velmora

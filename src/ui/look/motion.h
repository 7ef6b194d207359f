#pragma once

#include <chrono>

/// Durations of the animations, and the pulse that the status dots and the map share.
namespace velmora::Motion {

using std::chrono::milliseconds;

inline constexpr milliseconds hover{120};
inline constexpr milliseconds toggle{140};
inline constexpr milliseconds banner{180};
inline constexpr milliseconds formFold{160};
inline constexpr milliseconds cardIn{220};
inline constexpr milliseconds cardOut{140};
inline constexpr milliseconds sectionChange{160};
inline constexpr milliseconds notice{160};

inline constexpr milliseconds frame{34}; ///< between two frames: at most 30 a second
/// Between two frames of a live map. Longer than a tick, because each tick that moves the drone is a frame.
inline constexpr milliseconds mapFrame{60};

/// The time of the user interface's clock in seconds; drives the pulses.
double seconds();
/// Phase of the pulse at a time of that clock, 0 to 1.
double pulseAt(double seconds);

/// Whether the desktop asks for reduced motion.
bool reduced();

} // namespace velmora::Motion

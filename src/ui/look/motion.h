#pragma once

/// Durations of the movements, milliseconds, and the pulse that the status dots and the map share.
namespace velmora::Motion {

inline constexpr int hover = 120;
inline constexpr int toggle = 140;
inline constexpr int banner = 180;
inline constexpr int formFold = 160;
inline constexpr int cardIn = 220;
inline constexpr int cardOut = 140;
inline constexpr int sectionChange = 160;

inline constexpr int frame = 34; ///< between two frames: at most 30 a second
inline constexpr double pulseSeconds = 1.6;

/// Seconds of a clock that only goes forward; everything that pulses reads it, and so pulses in step.
double seconds();

/// Whether the desktop asks for no movement.
bool reduced();

} // namespace velmora::Motion

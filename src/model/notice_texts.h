#pragma once

#include "model/live_state.h"

#include <optional>
#include <string>
#include <string_view>

namespace velmora {

/// The meaning of a notice of the simulator. One table holds the text and level of each, so that a record's
/// notices can be read back.
enum class NoticeKind {
    detection, ///< inserts the camera's name
    approved,
    airborne,  ///< inserts the flight height, metres
    following, ///< inserts the follow distance, metres
    handedOver,
    atBoundary, ///< inserts the buffer, metres
    gust,       ///< inserts its speed, km/h
    crossedBoundary,
    leftGrounds,
    holding, ///< inserts the height, metres
    followingAgain,
    comingHome,
    comingHomeAsked,
    batteryLow, ///< inserts the return level, percent
    landingAsked,
    overPad,
    landed,
    landedAway,
    armed,
    disarmed,
};

/// The text of a notice. `inserted` is what the kind says above.
std::string noticeText(NoticeKind kind, std::string_view inserted = {});
/// With a number, truncated toward zero.
std::string noticeText(NoticeKind kind, double inserted);

Notice::Level noticeLevel(NoticeKind kind);

/// The kind of a notice, by its text; absent for any other text.
std::optional<NoticeKind> noticeKindOf(std::string_view text);

} // namespace velmora

#pragma once

#include "model/live_state.h"

#include <optional>
#include <string>
#include <string_view>

namespace velmora {

/// What a notice of the simulator tells of. Its text and level stand in one table, so that a record's notices
/// can be read back.
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

/// What a text tells of; absent for any other text.
std::optional<NoticeKind> noticeKindOf(std::string_view text);

} // namespace velmora

#pragma once

#include "model/live_state.h"

#include <optional>
#include <string>
#include <string_view>

namespace velmora {

/// Kind of a notice of the simulator. One table holds the text and level of each kind, so that the kind can
/// be found from the text.
enum class NoticeKind {
    detection, ///< inserts the camera's name
    approved,
    airborne,  ///< inserts the flight height, metres
    following, ///< inserts the follow distance, metres
    handedOver,
    atBoundary, ///< inserts the buffer, metres
    gust,       ///< inserts the speed of the gust, km/h
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

/// The text of a notice; `inserted` is the value listed above for its kind.
std::string noticeText(NoticeKind kind, std::string_view inserted = {});
/// Inserts the number, truncated toward zero.
std::string noticeText(NoticeKind kind, double inserted);

Notice::Level noticeLevel(NoticeKind kind);

/// What a notice of the simulator says.
struct NoticeReading {
    NoticeKind kind;
    std::optional<std::string_view> inserted; ///< part of the text that was read
};

/// The kind of the notice with this text and the value inserted into it; nullopt for any other text.
std::optional<NoticeReading> readNotice(std::string_view text);

} // namespace velmora

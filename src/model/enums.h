#pragma once

#include <array>
#include <optional>
#include <string_view>
#include <utility>

namespace velmora {

/// Table of the enumerators and their raw values, in declaration order. Raw values are stored in files and
/// sent over the network. Specialised after each enumeration.
template <class Enum>
inline constexpr auto rawValuesOf = std::array<std::pair<Enum, std::string_view>, 0>{};

/// An enumeration with raw values.
template <class T>
concept RawValued = (std::tuple_size_v<std::remove_cvref_t<decltype(rawValuesOf<T>)>> > 0);

template <RawValued Enum>
constexpr std::string_view rawValue(Enum value) {
    for (const auto& [candidate, text] : rawValuesOf<Enum>)
        if (candidate == value)
            return text;
    return {};
}

/// The enumerator with this raw value; nullopt if there is none.
template <RawValued Enum>
constexpr std::optional<Enum> fromRawValue(std::string_view text) {
    for (const auto& [value, candidate] : rawValuesOf<Enum>)
        if (candidate == text)
            return value;
    return std::nullopt;
}

/// Phase of a mission.
enum class Phase { docked, awaitingApproval, launching, enRoute, following, holding, returning, landing };

template <>
inline constexpr auto rawValuesOf<Phase> = std::to_array<std::pair<Phase, std::string_view>>({
    {Phase::docked, "docked"},
    {Phase::awaitingApproval, "awaiting_approval"},
    {Phase::launching, "launching"},
    {Phase::enRoute, "en_route"},
    {Phase::following, "following"},
    {Phase::holding, "holding"},
    {Phase::returning, "returning"},
    {Phase::landing, "landing"},
});

constexpr bool airborne(Phase phase) {
    return phase != Phase::docked && phase != Phase::awaitingApproval;
}

/// How a mission ended.
enum class Outcome {
    visitorLeft,
    returnedByYou,
    lowBattery,
    landedByYou,
    ignored,
    expired,
    disarmed,
    windTooHigh
};

/// These texts are shown to the owner and stored in files: changing one makes existing files unreadable.
template <>
inline constexpr auto rawValuesOf<Outcome> = std::to_array<std::pair<Outcome, std::string_view>>({
    {Outcome::visitorLeft, "Visitor left your grounds"},
    {Outcome::returnedByYou, "You sent the drone home"},
    {Outcome::lowBattery, "Came home on low battery"},
    {Outcome::landedByYou, "You landed the drone"},
    {Outcome::ignored, "You ignored the alert"},
    {Outcome::expired, "Alert expired — drone stayed docked"},
    {Outcome::disarmed, "Logged while disarmed"},
    {Outcome::windTooHigh, "Too windy to fly — drone stayed docked"},
});

constexpr bool flew(Outcome outcome) {
    return outcome <= Outcome::landedByYou;
}

/// What steers the drone while it follows: this computer (own) or the drone's subject tracking (native).
enum class TrackingMode { own, native };

template <>
inline constexpr auto rawValuesOf<TrackingMode> = std::to_array<std::pair<TrackingMode, std::string_view>>({
    {TrackingMode::own, "own"},
    {TrackingMode::native, "native"},
});

/// A screen of the main window, in the sidebar's order.
enum class Section { overview, live, history, cameras, settings };

template <>
inline constexpr auto rawValuesOf<Section> = std::to_array<std::pair<Section, std::string_view>>({
    {Section::overview, "overview"},
    {Section::live, "live"},
    {Section::history, "history"},
    {Section::cameras, "cameras"},
    {Section::settings, "settings"},
});

/// A scripted demo visit; the raw value is the id of the camera that sees it.
enum class Scenario { driveway, garden, front };

template <>
inline constexpr auto rawValuesOf<Scenario> = std::to_array<std::pair<Scenario, std::string_view>>({
    {Scenario::driveway, "driveway"},
    {Scenario::garden, "garden"},
    {Scenario::front, "front"},
});

/// The owner's commands.
enum class Command { approve, ignore, hold, resume, returnHome, land };

template <>
inline constexpr auto rawValuesOf<Command> = std::to_array<std::pair<Command, std::string_view>>({
    {Command::approve, "approve"},
    {Command::ignore, "ignore"},
    {Command::hold, "hold"},
    {Command::resume, "resume"},
    {Command::returnHome, "return"},
    {Command::land, "land"},
});

/// Whether the command answers an alert; the others steer a flying drone.
constexpr bool answersAlert(Command command) {
    return command == Command::approve || command == Command::ignore;
}

} // namespace velmora

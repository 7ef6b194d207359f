#pragma once

#include "model/date.h"
#include "model/enums.h"
#include "model/fields.h"

#include <optional>
#include <string>

namespace velmora {

/// Where a command was given.
enum class CommandSource { card, overview, live, menu, shortcut, tray, notification, selfCheck };

template <>
inline constexpr auto rawValuesOf<CommandSource> = std::to_array<std::pair<CommandSource, std::string_view>>({
    {CommandSource::card, "card"},
    {CommandSource::overview, "overview"},
    {CommandSource::live, "live"},
    {CommandSource::menu, "menu"},
    {CommandSource::shortcut, "shortcut"},
    {CommandSource::tray, "tray"},
    {CommandSource::notification, "notification"},
    {CommandSource::selfCheck, "self-check"},
});

/// What became of a command. A command that fails has two entries: sent, then failed.
enum class CommandResult { sent, failed, dropped };

template <>
inline constexpr auto rawValuesOf<CommandResult> = std::to_array<std::pair<CommandResult, std::string_view>>({
    {CommandResult::sent, "sent"},
    {CommandResult::failed, "failed"},
    {CommandResult::dropped, "dropped"},
});

/// A line of the journal: one command and what became of it.
struct JournalEntry {
    Date time; ///< when the command was given
    Command command = Command::ignore;
    std::optional<std::string> mission; ///< id of the mission, if there is one
    CommandSource source = CommandSource::card;
    CommandResult result = CommandResult::sent;
    std::optional<std::string> reason; ///< why it failed or was dropped
    bool demo = false;                 ///< for the simulated drone
};

template <>
inline constexpr auto fieldsOf<JournalEntry> =
    std::tuple{Field{"time", &JournalEntry::time},       Field{"command", &JournalEntry::command},
               Field{"mission", &JournalEntry::mission}, Field{"source", &JournalEntry::source},
               Field{"result", &JournalEntry::result},   Field{"reason", &JournalEntry::reason},
               Field{"demo", &JournalEntry::demo}};

/// The owner's answer to an alert.
struct GivenAnswer {
    Command command = Command::ignore; ///< approve or ignore
    Date time;
    std::optional<CommandSource> source; ///< nullopt if only the mission's record tells of the answer
};

} // namespace velmora

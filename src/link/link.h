#pragma once

#include "model/live_state.h"
#include "model/settings.h"

#include <QString>

#include <functional>
#include <optional>
#include <variant>

namespace velmora {

/// A state that the server sent, with the server's version (empty when it does not tell).
struct FetchedState {
    LiveState state;
    QString version;
};

/// Why a state could not be had, in words for the owner.
struct LinkError {
    QString text;
};

using FetchResult = std::variant<FetchedState, LinkError>;

/// The server's app API as the store uses it. Everything happens on the main thread.
class Link {
public:
    virtual ~Link() = default;

    /// Asks the server named in the settings for the live state. `done` is called exactly once: before
    /// returning when the address is invalid, otherwise when the exchange has ended.
    virtual void fetchState(const Settings& settings, std::function<void(FetchResult)> done) = 0;

    using CommandDone = std::function<void(const std::optional<LinkError>& failure)>;

    /// Posts one of the owner's commands for the mission, at most once. `done` is called once when the
    /// exchange has ended, with the reason when no reply came, and never when the address is invalid.
    virtual void send(Command command, const std::optional<std::string>& mission, const Settings& settings,
                      CommandDone done) = 0;
};

} // namespace velmora

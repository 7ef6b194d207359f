#pragma once

#include "link/failure_text.h"
#include "model/live_state.h"
#include "model/settings.h"

#include <QString>

#include <functional>
#include <optional>
#include <variant>

namespace velmora {

/// A state that the server sent, and the server's version (empty if it sent none).
struct FetchedState {
    LiveState state;
    QString version;
};

/// Why a request failed.
struct LinkError {
    QString text; ///< in words for the owner
    Failure failure = Failure::other;
};

using FetchResult = std::variant<FetchedState, LinkError>;

/// Client of the server's app API. Main thread only.
class Link {
public:
    virtual ~Link() = default;

    /// Requests the live state from the server in the settings. Calls `done` exactly once: before returning
    /// if the address is invalid, otherwise when the exchange ends.
    virtual void fetchState(const Settings& settings, std::function<void(FetchResult)> done) = 0;

    using CommandDone = std::function<void(const std::optional<LinkError>& failure)>;

    /// Posts a command for the mission, at most once. Calls `done` when the exchange ends, with the reason if
    /// no reply came. Never calls it if the address is invalid.
    virtual void send(Command command, const std::optional<std::string>& mission, const Settings& settings,
                      CommandDone done) = 0;

    /// Aborts the fetches without calling back, and closes kept connections as soon as no command runs.
    virtual void disconnect() = 0;
};

} // namespace velmora

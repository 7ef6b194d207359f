#pragma once

#include "model/freshness.h"
#include "model/live_state.h"

#include <map>
#include <optional>
#include <string>

namespace velmora {

/// What keeps the system from watching although it is armed: a silent server, or offline cameras.
struct Outage {
    bool serverIsSilent = false;
    std::map<std::string, std::string> cameras; ///< names of the offline cameras by id, if the server answers
    Date since; ///< the server's last answer, or when the first camera was seen offline

    bool operator==(const Outage&) const = default;
};

/// Finds outages: a server that has been silent for a minute, a camera that has been offline for five. In the
/// first half minute after the start and after a suspend no new outage counts, because the network may still
/// be coming up.
class OutageWatch {
public:
    /// What is known at one moment in link mode.
    struct Observation {
        const LiveState* known = nullptr; ///< null until the server has answered
        Freshness freshness = Freshness::unknown;
        std::optional<Date> lastAnswerAt;
    };

    /// Call about twenty times a second in link mode. Returns whether the outage changed.
    bool observe(const Observation& observation, Date now);
    /// Clears all observations. Call at the start and when the mode or the server changes. Returns whether
    /// that ends an outage.
    bool restart(Date now);

    /// nullopt while all is well.
    const std::optional<Outage>& outage() const { return outage_; }

private:
    void skip(Seconds gap);
    void followCameras(const Observation& observation, Date now);
    std::optional<Outage> find(const Observation& observation, Date now) const;

    Date startedAt_, graceEnd_, lastObserved_;
    std::map<std::string, Date> offlineSince_; ///< by camera id
    std::optional<Outage> outage_;
};

} // namespace velmora

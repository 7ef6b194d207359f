#pragma once

#include "support/random.h"
#include "support/store_world.h"

namespace velmora {

/// A server that answers at once; every third state request fails on average.
class FickleServer final : public Link {
public:
    explicit FickleServer(unsigned seed) : random_(seed) {}

    void fetchState(const Settings&, std::function<void(FetchResult)> done) override {
        if (random_.chance(1.0 / 3))
            return done(LinkError{QStringLiteral("Connection refused")});
        LiveState state = LiveState::initial();
        state.phase = random_.anyOf<Phase>();
        state.missionId = "S-1";
        done(FetchedState{state, QStringLiteral("1.0")});
    }
    void disconnect() override {}
    void send(Command, const std::optional<std::string>&, const Settings&, CommandDone done) override {
        done(std::nullopt);
    }

private:
    SeededRandom random_;
};

using SoakWorld = StoreWorld<SeededRandom, FickleServer>;

} // namespace velmora

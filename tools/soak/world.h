#pragma once

#include "store/app_store.h"

#include <QTemporaryDir>

namespace velmora {

/// Chance that can be had again: the same seed gives the same day.
class SeededRandom final : public Random {
public:
    explicit SeededRandom(unsigned seed) : generator_(seed) {}

    double uniform(double low, double high) override {
        return std::uniform_real_distribution<double>(low, high)(generator_);
    }
    Uuid uuid() override {
        const std::uint64_t high = generator_(), low = generator_();
        return Uuid::fromRandomBits(high, low);
    }
    bool happens(double chance) { return uniform(0, 1) < chance; }
    /// A whole number from 0 to one below the limit.
    std::size_t below(std::size_t limit) { return generator_() % limit; }
    template <RawValued Enum>
    Enum anyOf() {
        return rawValuesOf<Enum>[below(rawValuesOf<Enum>.size())].first;
    }

private:
    std::mt19937_64 generator_;
};

/// A server that answers at once, one time in three with an error.
class FickleServer final : public Link {
public:
    explicit FickleServer(SeededRandom& random) : random_(random) {}

    void fetchState(const Settings&, std::function<void(FetchResult)> done) override {
        if (random_.happens(1.0 / 3))
            return done(LinkError{QStringLiteral("Connection refused")});
        LiveState state = LiveState::initial();
        state.phase = random_.anyOf<Phase>();
        state.missionId = "S-1";
        done(FetchedState{state, QStringLiteral("1.0")});
    }
    void send(Command, const std::optional<std::string>&, const Settings&, CommandDone done) override {
        done(std::nullopt);
    }

private:
    SeededRandom& random_;
};

/// What a store needs, in a data directory of its own and with a clock that is moved.
struct World {
    explicit World(unsigned seed) : random(seed), server(random) {}

    AppStore::Environment forStore() {
        return {[this] { return now; }, random, directory, notifier, loginItem, server};
    }

    QTemporaryDir home;
    QDir directory{home.path() + QStringLiteral("/Velmora")};
    SeededRandom random;
    FickleServer server;
    SilentNotifier notifier;
    NoLoginItem loginItem;
    Date now = dateFromSeconds(1'750'000'000);
};

} // namespace velmora

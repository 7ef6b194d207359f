#include "simulator_fixture.h"

#include <algorithm>
#include <complex>

namespace velmora {

namespace {

using Plane = std::complex<double>;

constexpr double tick = 0.1;           // seconds, of a rehearsal
constexpr std::size_t sampleEvery = 5; // ticks

/// The points of each walk: x, y and the seconds that the visitor waits there.
const std::map<Scenario, std::vector<double>> walks = {
    {Scenario::driveway, {14, 88, 0, 22, 79, 0, 31,  66, 0, 41,  58, 0, 53,  54, 7,
                          66, 61, 0, 90, 74, 5, 112, 80, 0, 133, 84, 0, 152, 86, 0}},
    {Scenario::garden, {137, 17, 0, 120, 21, 0, 103, 30, 8, 110, 47, 0, 129, 57, 4, 152, 60, 0}},
    {Scenario::front, {104, 88, 0, 95, 78, 0, 82, 63, 6, 61, 73, 0, 43, 84, 3, 38, 99, 0}},
};

/// Number of ticks until a countdown from `seconds` ends, with the rounding of repeated subtraction.
std::size_t ticksOf(double seconds) {
    std::size_t ticks = 0;
    for (double left = seconds; left > 0; left -= tick)
        ++ticks;
    return ticks;
}

/// The visitor's position after each tick, in closed form for each leg, up to the tick in which the visitor
/// has been outside for more than six seconds.
std::vector<Plane> walkOf(Scenario scenario) {
    const double stride = 1.45 * tick;
    const std::vector<double>& points = walks.at(scenario);
    std::vector<Plane> walk;
    for (std::size_t i = 3; i < points.size(); i += 3) {
        const Plane from{points[i - 3], points[i - 2]}, to{points[i], points[i + 1]};
        for (int strides = 1; strides * stride < std::abs(to - from); ++strides)
            walk.push_back(from + std::polar(strides * stride, std::arg(to - from)));
        walk.insert(walk.end(), 1 + ticksOf(points[i + 2]), to);
    }
    const auto left = std::ranges::find_if(walk, [](Plane at) {
        return at.real() < 7.4 || at.real() > 142.6 || at.imag() < 6.6 || at.imag() > 90.6;
    });
    const std::size_t ticksOutside = 60; // six seconds are not enough
    walk.resize(static_cast<std::size_t>(left - walk.begin()) + ticksOutside, walk.back());
    return walk;
}

/// The drone's position after each tick from the approval to the first gust, which comes after 20 seconds in
/// the air.
std::vector<Plane> flightBeforeGust(const std::vector<Plane>& walk, std::size_t approvedAt) {
    const Plane home{74, 70.7};
    const std::size_t launchTicks = 50; // 15 m at 3 m/s
    std::vector<Plane> flight(launchTicks, home);
    const auto capped = [](Plane v, double limit) {
        return std::abs(v) > limit ? std::polar(limit, std::arg(v)) : v;
    };
    const auto buffered = [](Plane at) {
        return Plane{std::clamp(at.real(), 12.4, 137.6), std::clamp(at.imag(), 11.6, 85.6)};
    };
    Plane at = home, speed = 0;
    bool following = false;
    while (flight.size() + 1 < ticksOf(20)) {
        const Plane visitor = walk.at(approvedAt + flight.size());
        const Plane target = buffered(visitor + std::polar(15.0, std::arg(at - visitor)));
        const Plane wish = capped((target - at) * 0.9, following ? 7 : 9);
        speed += capped(wish - speed, 4 * tick);
        at = buffered(at + speed * tick);
        following = following || std::abs(at - target) < 3;
        flight.push_back(at);
    }
    return flight;
}

/// Every position that falls on a half second. The positions begin with the tick `firstTick`.
std::vector<Plane> sampled(const std::vector<Plane>& positions, std::size_t firstTick) {
    std::vector<Plane> samples;
    for (std::size_t i = 0; i < positions.size(); ++i)
        if ((firstTick + i + 1) % sampleEvery == 0)
            samples.push_back(positions[i]);
    return samples;
}

void expectBegins(const std::vector<P>& path, const std::vector<Plane>& expected, std::size_t count) {
    ASSERT_LE(count, expected.size());
    ASSERT_GE(path.size(), count);
    for (std::size_t i = 0; i < count; ++i)
        ASSERT_LT(std::abs(Plane(path[i].x, path[i].y) - expected[i]), 1e-9) << "at sample " << i;
}

struct Rehearsed {
    Scenario scenario;
    std::optional<double> approveAfter, returnAfter;
};

class PathCalculation : public testing::TestWithParam<Rehearsed> {};

} // namespace

TEST_P(PathCalculation, RehearsedPathsMatchTheClosedForm) {
    const auto [scenario, approveAfter, returnAfter] = GetParam();
    SeededRandom random(5);
    const auto record = Simulator::rehearse(scenario, approveAfter, returnAfter,
                                            dateFromSeconds(1'748'786'592), Settings{}, random);
    ASSERT_TRUE(record);
    const auto lastTick = static_cast<std::size_t>(std::lround((record->end - record->start).count() / tick));

    const std::vector<Plane> walk = walkOf(scenario);
    expectBegins(record->visitorPath, sampled(walk, 0), record->visitorPath.size());
    EXPECT_EQ(record->visitorPath.size(), std::min(lastTick, walk.size()) / sampleEvery);

    const std::size_t approvedAt =
        approveAfter ? static_cast<std::size_t>(std::lround(*approveAfter / tick)) : lastTick;
    EXPECT_EQ(record->dronePath.size(), lastTick / sampleEvery - approvedAt / sampleEvery);
    if (approveAfter) {
        const std::vector<Plane> flight = sampled(flightBeforeGust(walk, approvedAt), approvedAt);
        ASSERT_GT(flight.size(), 35u) << "nearly 20 seconds";
        expectBegins(record->dronePath, flight, flight.size());
    }
}

INSTANTIATE_TEST_SUITE_P(Visits, PathCalculation,
                         testing::Values(Rehearsed{Scenario::driveway, 9, {}},
                                         Rehearsed{Scenario::garden, 6, 70},
                                         Rehearsed{Scenario::front, {}, {}},
                                         Rehearsed{Scenario::front, 20, {}},
                                         Rehearsed{Scenario::driveway, 45.3, {}}));

} // namespace velmora

#include "model/walk_map.h"

#include "support/random.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace velmora {

namespace {

Site siteOf(double width, double depth) {
    Site site;
    site.size = {width, depth};
    return site;
}

MissionRecord walk(std::vector<P> path) {
    MissionRecord record;
    record.visitorPath = std::move(path);
    return record;
}

WalkMap mapOf(const std::vector<MissionRecord>& visits, const Site& site = siteOf(150, 100)) {
    WalkMap map(site);
    for (const MissionRecord& visit : visits)
        map.add(visit);
    return map;
}

/// Points along a line, `apart` metres from each other.
MissionRecord straight(P from, P to, double apart) {
    std::vector<P> path;
    for (double metres = 0; metres < distance(from, to); metres += apart)
        path.push_back(from + unit(to - from) * metres);
    path.push_back(to);
    return walk(path);
}

MissionRecord wandering(SeededRandom& random) {
    std::vector<P> path{{random.uniform(0, 150), random.uniform(0, 100)}};
    for (std::size_t left = random.below(200); left > 0; --left)
        path.push_back(path.back() + P{random.uniform(-2, 3), random.uniform(-2, 2)});
    return walk(path);
}

} // namespace

TEST(WalkMap, OneVisitIsOneAlongItsPathWhateverItsDirectionAndPace) {
    constexpr double spread = 2.3, tolerance = 0.02;
    for (const double degrees : {0, 17, 45, 60, 90, 133})
        for (const double apart : {0.2, 1.7, 50.0}) {
            const double angle = degrees * std::numbers::pi / 180;
            const P middle{75, 50}, along{std::cos(angle), std::sin(angle)}, across{-along.y, along.x};
            const WalkMap map = mapOf({straight(middle - along * 25, middle + along * 25, apart)});
            const WalkHeat heat = map.heat();
            EXPECT_EQ(map.mostVisits(), 1);
            for (const double to : {-10.0, -3.3, 0.0, 0.25, 7.1})
                for (const double beside : {0.0, 1.1, 2.3, 4.6})
                    EXPECT_NEAR(heat.at(middle + along * to + across * beside),
                                std::exp(-beside * beside / (2 * spread * spread)), tolerance)
                        << degrees << ' ' << apart << ' ' << to << ' ' << beside;
            EXPECT_EQ(heat.at(middle + across * 12), 0);
        }
}

TEST(WalkMap, ThePlaceThatMostVisitsPassedHasTheirNumber) {
    std::vector<MissionRecord> visits(8, straight({20, 50}, {120, 50}, 0.6));
    visits.push_back(straight({75, 10}, {75, 30}, 0.6));
    const WalkHeat heat = mapOf(visits).heat();
    EXPECT_EQ(heat.mostVisits, 8);
    EXPECT_NEAR(std::ranges::max(heat.values), 8, 1e-4);
    EXPECT_NEAR(heat.at({60, 50}), 8, 0.2);
    EXPECT_NEAR(heat.at({75, 20}), 1, 0.03) << "the key holds for one visit, too";
}

TEST(WalkMap, VisitsBesideEachOtherShareASpotThatBothPassed) {
    for (const bool upright : {false, true})
        for (const auto& [apart, most] : {std::pair(1.0, 2), {2.0, 2}, {3.0, 2}, {5.0, 1}}) {
            const P along = upright ? P{0, 60} : P{60, 0}, aside = upright ? P{apart, 0} : P{0, apart};
            const P first{30, 20}, second = first + aside;
            const WalkMap map =
                mapOf({straight(first, first + along, 0.6), straight(second, second + along, 0.6)});
            EXPECT_EQ(map.mostVisits(), most) << upright << ' ' << apart;
        }
}

TEST(WalkMap, ThePlanIsCountedUpToItsEdges) {
    for (const auto& [from, to] : {std::pair(P{10, 0.5}, P{60, 0.5}),
                                   {{10, 99.5}, {60, 99.5}},
                                   {{0.5, 10}, {0.5, 60}},
                                   {{149.5, 10}, {149.5, 60}}}) {
        const WalkMap map = mapOf({straight(from, to, 0.6)});
        EXPECT_EQ(map.mostVisits(), 1) << from.x << ' ' << from.y;
        EXPECT_NEAR(map.heat().at(from + (to - from) * 0.5), 1, 0.03) << from.x << ' ' << from.y;
    }
}

TEST(WalkMap, OnlyThePointsOfThePathCount) {
    MissionRecord visit = walk({{10, 10}, {50, 10}, {50, 90}});
    visit.visitorPath.pop_back(); // its memory still has the point
    EXPECT_FALSE(passesWithin(visit, {50, 40}, 2));
    WalkMap map(siteOf(150, 100));
    map.add(visit);
    EXPECT_NEAR(map.heat().at({30, 10}), 1, 0.02);
    EXPECT_EQ(map.heat().at({50, 60}), 0);
}

TEST(WalkMap, AVisitCountsOnceWhereItComesBack) {
    std::vector<P> there = straight({20, 50}, {120, 50}, 0.6).visitorPath, path = there;
    for (int times = 0; times < 6; ++times) {
        std::ranges::reverse(there);
        path.insert(path.end(), there.begin(), there.end());
    }
    EXPECT_EQ(mapOf({walk(path)}).mostVisits(), 1);
    EXPECT_NEAR(mapOf({walk(path)}).heat().at({70, 50}), 1, 0.1);
    path.assign(1000, {70, 50});
    EXPECT_LE(std::ranges::max(mapOf({walk(path)}).heat().values), 1) << "standing is not walking";
}

TEST(WalkMap, VisitsThatPassedAPlaceAreThoseOfTheFilter) {
    for (std::uint64_t seed = 1; seed <= 2; ++seed) {
        SeededRandom random(seed);
        std::vector<MissionRecord> visits;
        for (int visit = 0; visit < 25; ++visit)
            visits.push_back(wandering(random));
        std::ptrdiff_t nearer = 0, farther = 0;
        for (double x = 0; x < 150; ++x)
            for (double y = 0; y < 100; ++y) {
                const auto within = [&](double metres) {
                    return std::ranges::count_if(visits, [&](const MissionRecord& visit) {
                        return passesWithin(visit, {x, y}, metres);
                    });
                };
                nearer = std::max(nearer, within(WalkMap::passed - 1));
                farther = std::max(farther, within(WalkMap::passed + 1));
            }
        const int most = mapOf(visits).mostVisits();
        EXPECT_GE(most, nearer) << seed;
        EXPECT_LE(most, farther) << seed;
    }
}

TEST(WalkMap, APathPassesAPlaceBetweenItsPoints) {
    const MissionRecord visit = walk({{10, 10}, {50, 10}, {50, 40}});
    EXPECT_TRUE(passesWithin(visit, {30, 12}, 2));
    EXPECT_FALSE(passesWithin(visit, {30, 12.01}, 2));
    EXPECT_TRUE(passesWithin(visit, {51.9, 25}, 2));
    EXPECT_FALSE(passesWithin(visit, {50, 42.1}, 2)) << "beyond its end";
    EXPECT_FALSE(passesWithin(visit, {7.9, 10}, 2)) << "before its start";
    EXPECT_TRUE(passesWithin(walk({{5, 5}}), {6, 6}, 2));
    EXPECT_FALSE(passesWithin(walk({}), {0, 0}, 2));
    EXPECT_FALSE(passesWithin(walk({{1e300, 1e300}, {-1e300, 1e300}}), {0, 0}, 2));
}

TEST(WalkMap, WildPathsAndHugeSitesStayBounded) {
    constexpr std::size_t mostCells = 300'000;
    for (const Site& site : {siteOf(150, 100), siteOf(1, 1), siteOf(100'000, 100'000), siteOf(100'000, 1)}) {
        WalkMap map =
            mapOf({walk({}), walk({{1e308, -1e308}, {-1e308, 1e308}}), walk({{1e150, 0}, {-1e150, 0}}),
                   walk({{1e9, 50}, {-1e9, 50}}), walk({{0, 0}, {0, 0}}), walk({{-3, -3}, {1e5, 1e5}})},
                  site);
        SeededRandom random;
        std::vector<P> tangle;
        for (int point = 0; point < 2000; ++point)
            tangle.push_back(
                {random.uniform(-1, 1) * site.size.x * 2, random.uniform(-1, 1) * site.size.y * 2});
        map.add(walk(tangle));
        const WalkHeat heat = map.heat();
        EXPECT_LE(heat.values.size(), mostCells) << site.size.x;
        EXPECT_TRUE(std::ranges::all_of(heat.values, [](float value) { return value >= 0 && value < 100; }));
        EXPECT_GE(heat.mostVisits, 1);
    }
    EXPECT_EQ(WalkHeat().at({0, 0}), 0);
    EXPECT_EQ(mapOf({}).heat().mostVisits, 0);
}

TEST(WalkMap, BetweenItsValuesTheHeatIsInterpolatedAndThereIsNoneOutside) {
    const WalkHeat heat{2, {10, 20}, 3, 2, {1, 2, 3, 5, 6, 7}, 1};
    EXPECT_EQ(heat.at({10, 20}), 1);
    EXPECT_EQ(heat.at({13, 20}), 2.5);
    EXPECT_EQ(heat.at({13, 21}), 4.5);
    for (const P outside : {P{9.9, 20}, P{14.1, 20}, P{10, 19.9}, P{10, 22.1}})
        EXPECT_EQ(heat.at(outside), 0) << outside.x << ' ' << outside.y;
}

} // namespace velmora

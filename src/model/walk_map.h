#pragma once

#include "model/mission_record.h"
#include "model/site.h"

#include <cstdint>
#include <vector>

namespace velmora {

/// Whether the visitor's path comes within `metres` of the place.
bool passesWithin(const MissionRecord& record, P place, double metres);

/// How much visitors walked at each place, as the number of visits: 1 in the middle of a path that one visit
/// took, less beside it, and mostVisits() where most visits passed.
struct WalkHeat {
    double cell = 1; ///< metres from one value to the next
    P origin;        ///< place of the first value; the values reach beyond the plan
    int columns = 0, rows = 0;
    std::vector<float> values; ///< row by row
    int mostVisits = 0;

    /// Between the values; 0 outside.
    double at(P place) const;
};

/// Where visitors walked: their paths, one metre at a time. Keeps no paths; its memory is bounded whatever
/// the size of the site.
class WalkMap {
public:
    /// Visits that come as close to a place have passed it; metres.
    static constexpr double passed = 2;

    explicit WalkMap(const Site& site);

    void add(const MissionRecord& record);

    /// The most visits that passed one place of the plan.
    int mostVisits() const;
    /// Spreads the paths over a normal curve of 2.3 m.
    WalkHeat heat() const;

private:
    /// A square of the site as the visits see it.
    struct Square {
        std::uint32_t visits = 0;
        std::uint32_t lastVisit = 0; ///< number of the last visit that passed; 0 if none has
        std::uint32_t step = 0;      ///< its first step that did
    };

    static constexpr int squareCells = 2; ///< cells along the side of a square

    static std::size_t index(int number) { return static_cast<std::size_t>(number); }
    void tread(P place, std::uint32_t step);
    void leaveTrace(int column, int row, float right, float below);

    P plan_; ///< metres
    double cell_;
    double spread_; ///< standard deviation of the normal curve, metres
    double margin_; ///< around the plan, metres
    int columns_, rows_;
    std::vector<float> walked_; ///< metres walked in each cell, row by row
    int squaresAcross_;
    std::vector<Square> squares_;
    std::vector<int> around_; ///< from one square to those within `passed` of it
    int rim_;                 ///< cells at the edges that lack some of these squares
    std::uint32_t visit_ = 0; ///< number of the last visit added
};

} // namespace velmora

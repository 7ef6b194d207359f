#include "model/walk_map.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>
#include <utility>

namespace velmora {

namespace {

constexpr double finestCell = 0.5, finestStep = 1, normalSpread = 2.3; // metres
constexpr double reach = 3;                                            // of the normal curve, deviations
constexpr double mostCells = 200'000;

/// The part of the segment, as fractions of it, that lies in the rectangle.
std::optional<std::pair<double, double>> partInside(P a, P b, const Bounds& bounds) {
    if (bounds.contains(a) && bounds.contains(b))
        return std::pair(0.0, 1.0);
    double from = 0, to = 1;
    const auto cut = [&](double start, double change, double least, double most) {
        if (change == 0)
            return least <= start && start <= most;
        const double enters = (least - start) / change, leaves = (most - start) / change;
        from = std::max(from, std::min(enters, leaves));
        to = std::min(to, std::max(enters, leaves));
        return from <= to;
    };
    if (!cut(a.x, b.x - a.x, bounds.minX, bounds.maxX) || !cut(a.y, b.y - a.y, bounds.minY, bounds.maxY))
        return std::nullopt;
    return std::pair(from, to);
}

/// Calls `visit` with the points of the path inside the rectangle that are `step` metres of walking apart.
/// Leaves out segments so long that their part inside cannot be calculated.
template <class Visit>
void walk(const std::vector<P>& path, double step, const Bounds& inside, const Visit& visit) {
    const double longest = distance({inside.minX, inside.minY}, {inside.maxX, inside.maxY}) + step;
    double next = 0; // metres to the next point
    for (std::size_t i = 0; i < path.size(); ++i) {
        const P a = path[i], along = path[std::min(i + 1, path.size() - 1)] - a;
        const auto part = partInside(a, a + along, inside);
        const P from = part ? a + along * part->first : a, to = part ? a + along * part->second : a;
        const double metres = distance(from, to);
        if (!part || !(metres <= longest)) {
            next = 0;
            continue;
        }
        if (part->first > 0)
            next = 0;
        for (; next <= metres; next += step)
            visit(from + unit(to - from) * next);
        next = part->second < 1 ? 0 : next - metres;
    }
}

std::vector<float> normalCurve(double deviation) {
    const int radius = static_cast<int>(std::ceil(reach * deviation));
    std::vector<float> curve;
    for (int at = -radius; at <= radius; ++at)
        curve.push_back(static_cast<float>(std::exp(-at * at / (2 * deviation * deviation)) /
                                           (deviation * std::sqrt(2 * std::numbers::pi))));
    return curve;
}

/// Spreads the values along the rows and returns them with rows and columns exchanged.
std::vector<float> spreadRows(const std::vector<float>& values, int columns, int rows,
                              const std::vector<float>& curve) {
    std::vector<float> spread(values.size());
    std::vector<float> line(static_cast<std::size_t>(columns) + curve.size() - 1);
    const auto radius = static_cast<std::ptrdiff_t>(curve.size() / 2);
    for (int row = 0; row < rows; ++row) {
        std::copy_n(values.begin() + std::ptrdiff_t{row} * columns, columns, line.begin() + radius);
        for (int column = 0; column < columns; ++column) {
            float sum = 0;
            for (std::size_t i = 0; i < curve.size(); ++i)
                sum += curve[i] * line[static_cast<std::size_t>(column) + i];
            spread[static_cast<std::size_t>(std::ptrdiff_t{column} * rows + row)] = sum;
        }
    }
    return spread;
}

} // namespace

bool passesWithin(const MissionRecord& record, P place, double metres) {
    const auto& path = record.visitorPath;
    for (std::size_t i = 0; i < path.size(); ++i) {
        const P from = path[i], along = path[std::min(i + 1, path.size() - 1)] - from, to = place - from;
        const double square = along.x * along.x + along.y * along.y;
        const double share =
            square > 0 ? std::clamp((to.x * along.x + to.y * along.y) / square, 0.0, 1.0) : 0;
        if (distance(to, along * share) <= metres)
            return true;
    }
    return false;
}

double WalkHeat::at(P place) const {
    const double x = (place.x - origin.x) / cell, y = (place.y - origin.y) / cell;
    if (!(x >= 0 && x < columns - 1 && y >= 0 && y < rows - 1))
        return 0;
    const auto column = static_cast<std::size_t>(x), row = static_cast<std::size_t>(y);
    const double right = x - static_cast<double>(column), below = y - static_cast<double>(row);
    const float* value = &values[row * static_cast<std::size_t>(columns) + column];
    const float* under = value + columns;
    return (1 - below) * ((1 - right) * value[0] + right * value[1]) +
           below * ((1 - right) * under[0] + right * under[1]);
}

WalkMap::WalkMap(const Site& site) : plan_(site.size) {
    constexpr double around = 2 * reach * normalSpread;
    cell_ = std::max(finestCell, std::sqrt((plan_.x + around) * (plan_.y + around) / mostCells));
    spread_ = std::max(normalSpread, cell_);
    margin_ = reach * spread_;
    columns_ = static_cast<int>(std::ceil((plan_.x + 2 * margin_) / cell_)) + 1;
    rows_ = static_cast<int>(std::ceil((plan_.y + 2 * margin_) / cell_)) + 1;
    walked_.resize(index(columns_) * index(rows_));
    squaresAcross_ = columns_ / squareCells + 1;
    squares_.resize(index(squaresAcross_) * index(rows_ / squareCells + 1));
    const double side = squareCells * cell_;
    const int radius = static_cast<int>(passed / side);
    rim_ = squareCells * radius + 1;
    for (int down = -radius; down <= radius; ++down)
        for (int right = -radius; right <= radius; ++right)
            if (std::hypot(right, down) * side <= passed)
                around_.push_back(down * squaresAcross_ + right);
}

void WalkMap::add(const MissionRecord& record) {
    ++visit_;
    std::uint32_t step = 0;
    const Bounds inside{-margin_, -margin_, plan_.x + margin_, plan_.y + margin_};
    walk(record.visitorPath, std::max(finestStep, cell_), inside, [&](P place) { tread(place, step++); });
}

/// Counts the visit in all squares around that it has not passed before. One that comes back to where it was
/// leaves no second trace there.
void WalkMap::tread(P place, std::uint32_t step) {
    constexpr std::uint32_t passing = 8; // steps while a place is passed
    const double x = (place.x + margin_) / cell_, y = (place.y + margin_) / cell_;
    if (!(x >= rim_ && x < columns_ - rim_ && y >= rim_ && y < rows_ - rim_))
        return;
    const auto column = static_cast<int>(x), row = static_cast<int>(y);
    const int here = row / squareCells * squaresAcross_ + column / squareCells;
    const Square& own = squares_[index(here)];
    const bool returned = own.lastVisit == visit_ && step - own.step > passing;
    for (const int offset : around_)
        if (Square& square = squares_[index(here + offset)]; square.lastVisit != visit_)
            square = {square.visits + 1, visit_, step};
    if (!returned)
        leaveTrace(column, row, static_cast<float>(x - column), static_cast<float>(y - row));
}

/// Divides a step among four cells by its place between them.
void WalkMap::leaveTrace(int column, int row, float right, float below) {
    const auto metres = static_cast<float>(std::max(finestStep, cell_));
    float* cell = &walked_[index(row) * index(columns_) + index(column)];
    float* under = cell + columns_;
    cell[0] += metres * (1 - right) * (1 - below);
    cell[1] += metres * right * (1 - below);
    under[0] += metres * (1 - right) * below;
    under[1] += metres * right * below;
}

int WalkMap::mostVisits() const {
    const int edge = static_cast<int>(margin_ / (squareCells * cell_));
    std::uint32_t most = 0;
    for (int row = edge; row < rows_ / squareCells - edge; ++row)
        for (int column = edge; column < columns_ / squareCells - edge; ++column)
            most = std::max(most, squares_[index(row * squaresAcross_ + column)].visits);
    return static_cast<int>(most);
}

WalkHeat WalkMap::heat() const {
    const auto curve = normalCurve(spread_ / cell_);
    WalkHeat heat{cell_,
                  {-margin_, -margin_},
                  columns_,
                  rows_,
                  spreadRows(spreadRows(walked_, columns_, rows_, curve), rows_, columns_, curve),
                  mostVisits()};
    const auto perVisit = static_cast<float>(spread_ * std::sqrt(2 * std::numbers::pi) / (cell_ * cell_));
    float most = 0;
    for (float& value : heat.values)
        most = std::max(most, value *= perVisit);
    if (most <= 1)
        return heat;
    const float above = static_cast<float>(std::max(heat.mostVisits - 1, 0)) / (most - 1);
    for (float& value : heat.values)
        value = value <= 1 ? value : 1 + (value - 1) * above;
    return heat;
}

} // namespace velmora

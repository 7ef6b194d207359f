#include "sim/scenario.h"

#include <array>

namespace velmora {

namespace {

constexpr auto driveway = std::to_array<RoutePoint>({{{14, 88}, 0},
                                                     {{22, 79}, 0},
                                                     {{31, 66}, 0},
                                                     {{41, 58}, 0},
                                                     {{53, 54}, 7},
                                                     {{66, 61}, 0},
                                                     {{90, 74}, 5},
                                                     {{112, 80}, 0},
                                                     {{133, 84}, 0},
                                                     {{152, 86}, 0}});

constexpr auto garden = std::to_array<RoutePoint>(
    {{{137, 17}, 0}, {{120, 21}, 0}, {{103, 30}, 8}, {{110, 47}, 0}, {{129, 57}, 4}, {{152, 60}, 0}});

constexpr auto front = std::to_array<RoutePoint>(
    {{{104, 88}, 0}, {{95, 78}, 0}, {{82, 63}, 6}, {{61, 73}, 0}, {{43, 84}, 3}, {{38, 99}, 0}});

} // namespace

std::span<const RoutePoint> routeOf(Scenario scenario) {
    switch (scenario) {
    case Scenario::driveway:
        return driveway;
    case Scenario::garden:
        return garden;
    case Scenario::front:
        return front;
    }
    return {};
}

} // namespace velmora

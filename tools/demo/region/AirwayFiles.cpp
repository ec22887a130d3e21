#include "demo/region/AirwayFiles.h"

#include "demo/region/NavigationPlans.h"
#include "demo/region/Text.h"

#include <algorithm>
#include <cstdio>
#include <iterator>

namespace skyvane::demo {

namespace {

constexpr const char* icaoRegion = "XS";

std::string header(const char* format, const char* metadata) {
    return std::string("I\n") + format + " Version - the Skyvane Islands, fictional, not for navigation. " + metadata +
           ".\n\n";
}

// How X-Plane numbers the kinds of an airway's ends: 2 an NDB, 3 a VOR, 11 a fix.
int pointKind(const std::string& ident) {
    const auto* navaid = std::find_if(std::begin(navaidPlans), std::end(navaidPlans),
                                      [&](const NavaidPlan& plan) { return ident == plan.ident; });
    if (navaid == std::end(navaidPlans))
        return 11;
    return navaid->type == std::string("NDB") ? 2 : 3;
}

} // namespace

std::string writeFixes() {
    std::string text = header("1101", "Metadata FixXP1101");
    for (const FixPlan& plan : fixPlans) {
        const ChartPosition position = RegionPlane::toPosition(plan.place * 1000.0);
        text += fixed(position.latitude, 9) + " " + fixed(position.longitude, 9) + " " + plan.ident + " ENRT " +
                icaoRegion + " 2115159\n";
    }
    return text + "99\n";
}

std::string writeAirways() {
    std::string text = header("1100", "Metadata AwyXP1100");
    for (const AirwayPlan& plan : airwayPlans) {
        for (size_t i = 0; i + 1 < std::size(plan.points) && plan.points[i + 1]; ++i) {
            char line[128];
            std::snprintf(line, sizeof line, "%5s %s %2d %5s %s %2d %s %d %3d %3d %s\n", plan.points[i], icaoRegion,
                          pointKind(plan.points[i]), plan.points[i + 1], icaoRegion, pointKind(plan.points[i + 1]),
                          plan.direction, plan.layer, plan.baseFlightLevel, plan.topFlightLevel, plan.name);
            text += line;
        }
    }
    return text + "99\n";
}

} // namespace skyvane::demo

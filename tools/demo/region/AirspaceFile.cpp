#include "demo/region/AirspaceFile.h"

#include "demo/region/AirspacePlans.h"
#include "demo/region/Text.h"

namespace skyvane::demo {

namespace {

std::string corner(Spot spot) {
    return "DP " + degreesMinutesSeconds(RegionPlane::toPosition(spot)) + "\n";
}

// Two half circles, one beyond each end of the runway, and the straight lines between them.
std::string roundRunway(const AirspacePlan& plan, const Airport& airport) {
    const double radius = plan.radiusMiles * MetresPerNauticalMile;
    const Spot along = (airport.to - airport.from) * (1.0 / distance(airport.from, airport.to));
    const Spot stretch = along * (plan.stretchMiles * MetresPerNauticalMile);
    const Spot right = rightOf(along) * radius;
    const auto halfCircle = [&](Spot centre, Spot from, Spot to) {
        return "V X=" + degreesMinutesSeconds(RegionPlane::toPosition(centre)) + "\nDB " +
               degreesMinutesSeconds(RegionPlane::toPosition(from)) + "," +
               degreesMinutesSeconds(RegionPlane::toPosition(to)) + "\n";
    };
    const Spot first = airport.middle() - stretch;
    const Spot second = airport.middle() + stretch;
    const Spot left = right * -1.0;
    // Clockwise, as V D=+ says.
    return "V D=+\n" + halfCircle(second, second + left, second + right) +
           halfCircle(first, first + right, first + left);
}

std::string box(const AirspacePlan& plan) {
    constexpr double kilometre = 1000.0;
    const double west = plan.box[0] * kilometre, south = plan.box[1] * kilometre;
    const double east = plan.box[2] * kilometre, north = plan.box[3] * kilometre;
    return corner({west, north}) + corner({east, north}) + corner({east, south}) + corner({west, south});
}

} // namespace

std::string writeAirspaces(const Sites& sites) {
    std::string text = "* The Skyvane Islands: fictional, not for navigation.\n";
    for (const AirspacePlan& plan : airspacePlans) {
        text += std::string("\nAC ") + plan.airspaceClass + "\nAN " + fictional(plan.name) + "\nAH " + plan.ceiling +
                "\nAL " + plan.floor + "\n";
        text += plan.aroundIdent ? roundRunway(plan, sites.airport(plan.aroundIdent)) : box(plan);
    }
    return text;
}

} // namespace skyvane::demo

#include "demo/region/Sites.h"

#include "chart/geodesy/Angles.h"
#include "chart/geodesy/GreatCircle.h"
#include "chart/geodesy/Headings.h"
#include "chart/geodesy/LocalFrame.h"

#include <algorithm>
#include <optional>

namespace skyvane::demo {

namespace {

constexpr double kilometre = 1000.0;
constexpr double levelHalfWidth = 220.0;

struct Strip {
    Spot from;
    Spot to;
};

Strip stripAt(Spot middle, double headingDegrees, double lengthMetres) {
    const double turn = headingDegrees / DegreesPerRadian;
    const Spot half = Spot{std::sin(turn), std::cos(turn)} * (0.5 * lengthMetres);
    return {middle - half, middle + half};
}

double lengthMetres(const AirportPlan& plan) {
    return plan.lengthFeet * MetresPerFoot;
}

// How much ground a runway there would have to move, in metres; nothing where none may be.
std::optional<double> judgeStrip(const Landscape& landscape, const AirportPlan& plan, const Strip& strip) {
    constexpr int samples = 10;
    const Spot aside = rightOf((strip.to - strip.from) * (1.0 / distance(strip.from, strip.to)));
    const HeightGrid& grid = landscape.getGrid();
    const double first = grid.linear(strip.from);
    const double last = grid.linear(strip.to);
    const double slope = std::fabs(last - first) / distance(strip.from, strip.to);
    if (std::min(first, last) < plan.lowestMetres || std::max(first, last) > plan.highestMetres)
        return {};
    double worst = 0.0;
    for (int i = -2; i <= samples + 2; ++i) {
        const double t = static_cast<double>(i) / samples;
        for (const double side : {-250.0, 0.0, 250.0}) {
            const Spot spot = blend(strip.from, strip.to, t) + aside * side;
            if (landscape.coast(spot) < 150.0)
                return {};
            worst = std::max(worst, std::fabs(grid.linear(spot) - (first + (last - first) * t)));
        }
        if (landscape.getWaterways().distanceToRiver(blend(strip.from, strip.to, t), 450.0) < 450.0)
            return {};
    }
    return worst + 2000.0 * std::max(0.0, slope - plan.steepest);
}

Strip findStrip(const Landscape& landscape, const AirportPlan& plan) {
    constexpr double step = 600.0;
    constexpr double turn = 15.0;
    double best = 1e9;
    Strip found = stripAt((plan.searchFrom + plan.searchTo) * (0.5 * kilometre), 90.0, lengthMetres(plan));
    for (double y = plan.searchFrom.y * kilometre; y <= plan.searchTo.y * kilometre; y += step) {
        for (double x = plan.searchFrom.x * kilometre; x <= plan.searchTo.x * kilometre; x += step) {
            const double metres = landscape.getGrid().linear({x, y});
            if (metres < plan.lowestMetres || metres > plan.highestMetres || landscape.distanceToPads({x, y}) < 6000.0)
                continue;
            for (double heading = 10.0; heading < 180.0; heading += turn) {
                const Strip strip = stripAt({x, y}, heading, lengthMetres(plan));
                const std::optional<double> worst = judgeStrip(landscape, plan, strip);
                if (worst && *worst < best) {
                    best = *worst;
                    found = strip;
                }
            }
        }
    }
    return found;
}

Airport buildAirport(Landscape& landscape, const AirportPlan& plan, const Strip& wanted) {
    // The plane's scale is off by up to 1 %: lay the runway out to its true length.
    const ChartPosition middle = RegionPlane::toPosition(blend(wanted.from, wanted.to, 0.5));
    const Spot line = wanted.to - wanted.from;
    const double half = 0.5 * lengthMetres(plan) / length(line);
    const auto end = [&](double sign) {
        return RegionPlane::toSpot(
            Vector3df642ChartPosition(middle, {sign * half * line.x, 0.0, sign * half * line.y}));
    };
    Airport airport{&plan, end(-1.0), end(1.0), 0.0, 0.0, 0.0};
    airport.headingTrueDegrees =
        calcBearing2(RegionPlane::toPosition(airport.from), RegionPlane::toPosition(airport.to));
    airport.fromMetres = landscape.height(airport.from);
    airport.toMetres = landscape.height(airport.to);
    const double allowed = 0.8 * plan.steepest * lengthMetres(plan);
    const double mean = 0.5 * (airport.fromMetres + airport.toMetres);
    const double rise = std::clamp(airport.toMetres - airport.fromMetres, -allowed, allowed);
    airport.fromMetres = std::max(mean - 0.5 * rise, 2.5);
    airport.toMetres = std::max(mean + 0.5 * rise, 2.5);
    if (plan.site == AirportPlan::Site::Runway)
        landscape.addPad({airport.from, airport.to, airport.fromMetres, airport.toMetres, levelHalfWidth});
    return airport;
}

// Low and level, near the coast or a river, away from runways.
double judgeTown(const Landscape& landscape, const TownPlan& plan, Spot spot) {
    const HeightGrid& grid = landscape.getGrid();
    const double coast = landscape.coast(spot);
    if (coast < 250.0 || landscape.distanceToPads(spot) < 1200.0 + plan.sizeMetres)
        return 1e9;
    if (landscape.getWaterways().lakeDepth(spot) > -0.7 * plan.sizeMetres)
        return 1e9;
    const double reach = 0.7 * plan.sizeMetres;
    double uneven = 0.0;
    for (const Spot offset : {Spot{reach, 0}, Spot{-reach, 0}, Spot{0, reach}, Spot{0, -reach}})
        uneven += std::fabs(grid.linear(spot + offset) - grid.linear(spot));
    const double water = std::min(coast, landscape.getWaterways().distanceToRiver(spot, 1500.0));
    return uneven + 0.3 * grid.linear(spot) + 0.03 * water + 0.004 * distance(spot, plan.near * kilometre);
}

Town settleTown(const Landscape& landscape, const TownPlan& plan) {
    constexpr double step = 300.0;
    const double reach = plan.searchKilometres * kilometre;
    Town town{&plan, plan.near * kilometre};
    double best = 1e8;
    for (double y = -reach; y <= reach; y += step) {
        for (double x = -reach; x <= reach; x += step) {
            const Spot spot = plan.near * kilometre + Spot{x, y};
            const double score = x * x + y * y > reach * reach ? 1e9 : judgeTown(landscape, plan, spot);
            if (score < best) {
                best = score;
                town.middle = spot;
            }
        }
    }
    return town;
}

template <class Place, class Name>
const Place& findPlace(const std::vector<Place>& places, const std::string& name, Name nameOf) {
    return *std::find_if(places.begin(), places.end(), [&](const Place& place) { return nameOf(place) == name; });
}

} // namespace

std::string Airport::endName(bool first) const {
    const double variation = calcTrueHeading(RegionPlane::toPosition(middle()), 0.0);
    return dir2Label(static_cast<float>(Angle0to360(headingTrueDegrees - variation + (first ? 0.0 : 180.0))));
}

const Airport& Sites::airport(const std::string& ident) const {
    return findPlace(airports, ident, [](const Airport& airport) { return airport.plan->ident; });
}

const Town& Sites::town(const std::string& name) const {
    return findPlace(towns, name, [](const Town& town) { return town.plan->name; });
}

Sites settle(Landscape& landscape) {
    Sites sites;
    for (const AirportPlan& plan : airportPlans) {
        if (plan.site == AirportPlan::Site::Runway)
            sites.airports.push_back(buildAirport(landscape, plan, findStrip(landscape, plan)));
        if (plan.site == AirportPlan::Site::Lake) {
            const Waterways& water = landscape.getWaterways();
            const double heading =
                std::atan2(water.getLakeDirection().x, water.getLakeDirection().y) * DegreesPerRadian;
            const Strip strip = stripAt(water.getLakeMiddle(), Angle0to360(heading), lengthMetres(plan));
            sites.airports.push_back(buildAirport(landscape, plan, strip));
        }
    }
    for (const TownPlan& plan : townPlans)
        sites.towns.push_back(settleTown(landscape, plan));
    for (const AirportPlan& plan : airportPlans) {
        if (plan.site != AirportPlan::Site::Town)
            continue;
        const Town& town = sites.town(plan.town);
        const Spot spot = town.middle + Spot{0.25 * town.plan->sizeMetres, 0.2 * town.plan->sizeMetres};
        const double metres = landscape.height(spot);
        sites.airports.push_back({&plan, spot, spot, metres, metres, 0.0});
    }
    return sites;
}

} // namespace skyvane::demo

#include "demo/region/GroundFeatures.h"

#include "demo/region/Contour.h"
#include "demo/region/Text.h"

#include <algorithm>

namespace skyvane::demo {

namespace {

constexpr const char* riverNames[] = {"Alder", "Calder", "Greywater", "Rosk",   "Thornburn", "Sand",
                                      "Ember", "Linn",   "Marrow",    "Tarrow", "Westburn",  "Yarrow"};

GroundFeature polygon(const char* key, const char* value, std::string name, std::vector<Spot> ring) {
    return {key, value, std::move(name), true, 0.0, false, std::move(ring)};
}

void drawCoasts(const Landscape& landscape, std::vector<GroundFeature>& features) {
    constexpr double step = 125.0;
    constexpr double smallest = 30e3; // square metres
    const ContourBox box{{0.0, 0.0}, {RegionPlane::Width, RegionPlane::Height}, step};
    for (auto& ring : traceContours(box, [&](Spot spot) { return landscape.coast(spot); })) {
        const double area = signedArea(ring);
        if (std::fabs(area) < smallest)
            continue;
        if (area < 0.0) { // a lagoon inside of the land
            features.push_back(polygon("natural", "water", fictional("Lagoon"), std::move(ring)));
            continue;
        }
        ring.push_back(ring.front());
        features.push_back({"natural", "coastline", "", false, 0.0, false, std::move(ring)});
    }
}

void drawLake(const Landscape& landscape, std::vector<GroundFeature>& features) {
    constexpr double reach = 5000.0;
    const Spot middle = landscape.getWaterways().getLakeMiddle();
    const ContourBox box{middle - Spot{reach, reach}, middle + Spot{reach, reach}, 60.0};
    const auto depth = [&](Spot spot) { return landscape.getWaterways().lakeDepth(spot) - 25.0; };
    for (auto& ring : traceContours(box, depth)) {
        if (signedArea(ring) > 1e5)
            features.push_back(polygon("natural", "water", fictional("Grey Lake"), std::move(ring)));
    }
}

void drawRivers(const Landscape& landscape, std::vector<GroundFeature>& features) {
    std::vector<const River*> rivers;
    for (const River& river : landscape.getWaterways().getRivers())
        rivers.push_back(&river);
    std::stable_sort(rivers.begin(), rivers.end(),
                     [](const River* a, const River* b) { return a->mouthArea > b->mouthArea; });
    for (size_t i = 0; i < rivers.size(); ++i) {
        GroundFeature river{"waterway", "river", "", false, 0.0, false, {}};
        if (i < std::size(riverNames))
            river.name = fictional(std::string("River ") + riverNames[i]);
        for (const RiverPoint& point : rivers[i]->points)
            river.points.push_back(point.spot);
        river.widthMetres = std::round(4.0 + 0.0016 * std::sqrt(static_cast<double>(rivers[i]->mouthArea)));
        features.push_back(std::move(river));
    }
}

void drawTowns(const Landscape& landscape, const Sites& sites, std::vector<GroundFeature>& features) {
    const Noise edges(977, 900.0, 3);
    for (const Town& town : sites.towns) {
        const double size = town.plan->sizeMetres;
        const auto inside = [&](Spot spot) {
            const double round = size * (0.75 + 0.55 * edges(spot)) - distance(spot, town.middle);
            return std::min({round, landscape.coast(spot) - 60.0, landscape.distanceToPads(spot) - 60.0,
                             -landscape.getWaterways().lakeDepth(spot) - 40.0});
        };
        const ContourBox box{town.middle - Spot{2.5 * size, 2.5 * size}, town.middle + Spot{2.5 * size, 2.5 * size},
                             80.0};
        for (auto& ring : traceContours(box, inside)) {
            if (signedArea(ring) > 0.1 * size * size)
                features.push_back(polygon("landuse", "residential", fictional(town.plan->name), std::move(ring)));
        }
    }
}

/// Places seen from a runway: metres along it from its first end, and to the right of it.
class RunwayFrame {
public:
    explicit RunwayFrame(const Airport& airport)
        : from_(airport.from), along_((airport.to - airport.from) * (1.0 / distance(airport.from, airport.to))) {}

    Spot at(double along, double right) const { return from_ + along_ * along + rightOf(along_) * right; }
    std::vector<Spot> box(double fromAlong, double fromRight, double toAlong, double toRight) const {
        return {at(fromAlong, fromRight), at(toAlong, fromRight), at(toAlong, toRight), at(fromAlong, toRight)};
    }

private:
    Spot from_;
    Spot along_;
};

void drawTaxiways(const Airport& airport, const RunwayFrame& frame, std::vector<GroundFeature>& features) {
    constexpr double parallel = 165.0;
    const double run = distance(airport.from, airport.to);
    const double width = airport.plan->widthFeet > 120 ? 23.0 : 15.0;
    const auto taxiway = [&](const char* name, std::vector<Spot> line) {
        features.push_back({"aeroway", "taxiway", name, false, width, airport.plan->isLighted, std::move(line)});
    };
    const double in = 60.0;
    taxiway("A", {frame.at(20.0, 0.0), frame.at(20.0, parallel - in), frame.at(20.0 + in, parallel),
                  frame.at(run - 20.0 - in, parallel), frame.at(run - 20.0, parallel - in), frame.at(run - 20.0, 0.0)});
    const double exits[] = {0.33, 0.62};
    const char* const names[] = {"B", "C"};
    for (int i = 0; i < 2; ++i)
        taxiway(names[i], {frame.at(exits[i] * run, 0.0), frame.at(exits[i] * run, parallel)});
    const double middle = 0.5 * run;
    const double half = std::min(0.16 * run, 330.0);
    taxiway("D", {frame.at(middle - 0.6 * half, parallel), frame.at(middle - 0.6 * half, 215.0)});
    taxiway("E", {frame.at(middle + 0.6 * half, parallel), frame.at(middle + 0.6 * half, 215.0)});
    features.push_back(polygon("aeroway", "apron", "Apron", frame.box(middle - half, 210.0, middle + half, 320.0)));
    features.back().isLit = airport.plan->isLighted;
    features.push_back(
        polygon("aeroway", "terminal", "Terminal", frame.box(middle - 0.3 * half, 325.0, middle + 0.3 * half, 360.0)));
    for (int hangar = 0; hangar < 3; ++hangar) {
        const double along = middle + half * 0.45 + hangar * 55.0;
        features.push_back(polygon("aeroway", "hangar", "Hangar", frame.box(along, 325.0, along + 42.0, 360.0)));
    }
}

} // namespace

std::vector<GroundFeature> drawNature(const Landscape& landscape, const Sites& sites) {
    std::vector<GroundFeature> features;
    drawCoasts(landscape, features);
    drawLake(landscape, features);
    drawRivers(landscape, features);
    drawTowns(landscape, sites, features);
    return features;
}

std::vector<GroundFeature> drawAirport(const Airport& airport) {
    std::vector<GroundFeature> features;
    if (airport.isOnWater())
        return features;
    if (!airport.hasRunway()) {
        const Spot half{12.0, 12.0};
        const Spot middle = airport.middle();
        features.push_back(
            polygon("aeroway", "helipad", "H",
                    {middle - half, middle + Spot{half.x, -half.y}, middle + half, middle + Spot{-half.x, half.y}}));
        return features;
    }
    const RunwayFrame frame(airport);
    const double run = distance(airport.from, airport.to);
    const double half = 0.5 * airport.plan->widthFeet * MetresPerFoot;
    features.push_back(polygon("aeroway", "runway", airport.endName(true) + "/" + airport.endName(false),
                               frame.box(0.0, -half, run, half)));
    if (airport.plan->lengthFeet > 5000)
        drawTaxiways(airport, frame, features);
    else
        features.push_back(polygon("aeroway", "apron", "Apron", frame.box(0.42 * run, 60.0, 0.58 * run, 110.0)));
    return features;
}

std::vector<GroundFeature> drawRoutes(const Landscape& landscape, const Sites& sites) {
    std::vector<GroundFeature> features;
    for (Route& road : buildRoads(landscape, sites))
        features.push_back({"highway", "primary", road.name, false, 9.0, false, std::move(road.line)});
    for (Route& railway : buildRailway(landscape, sites))
        features.push_back({"railway", "rail", railway.name, false, 5.0, false, std::move(railway.line)});
    return features;
}

} // namespace skyvane::demo

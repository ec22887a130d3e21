#pragma once

#include "demo/region/Routes.h"

#include <string>
#include <vector>

namespace skyvane::demo {

/// A line or polygon on the ground, tagged as OpenStreetMap tags it.
struct GroundFeature {
    const char* key;
    const char* value;
    std::string name;
    bool isPolygon; ///< Then `points` is a ring without its closing point.
    double widthMetres;
    bool isLit;
    std::vector<Spot> points;
};

/// The coasts, lakes, rivers and towns of the region.
std::vector<GroundFeature> drawNature(const Landscape& landscape, const Sites& sites);
/// Runway, taxiways, apron and buildings of an airport; a mere field has a runway only, and water nothing.
std::vector<GroundFeature> drawAirport(const Airport& airport);
/// Roads and railways.
std::vector<GroundFeature> drawRoutes(const Landscape& landscape, const Sites& sites);

} // namespace skyvane::demo

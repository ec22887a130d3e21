#pragma once

#include "demo/region/Sites.h"

#include <vector>

namespace skyvane::demo {

/// A road or a railway, one stretch between junctions.
struct Route {
    const char* name;
    std::vector<Spot> line;
};

/// How a kind of way is built.
struct RouteRules {
    double slopeCost; ///< What climbing costs, against running level.
    double steepest;  ///< Rise over run beyond which it becomes very dear.
};

/// The roads between the towns and airports. Where two run together they are one; they cross the ranges by the passes.
std::vector<Route> buildRoads(const Landscape& landscape, const Sites& sites);
/// The one railway.
std::vector<Route> buildRailway(const Landscape& landscape, const Sites& sites);

} // namespace skyvane::demo

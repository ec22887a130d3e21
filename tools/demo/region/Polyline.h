#pragma once

#include "demo/region/Spot.h"

#include <vector>

namespace skyvane::demo {

/// A rounder form of a line: each round moves every point towards its neighbours; then corners are cut once. The ends
/// stay.
std::vector<Spot> smoothLine(std::vector<Spot> line, int rounds);

/// The distance from a place to a line in metres; a large number for an empty one.
double distanceToLine(Spot spot, const std::vector<Spot>& line);

} // namespace skyvane::demo

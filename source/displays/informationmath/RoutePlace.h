#pragma once

#include "chart/geodesy/ChartPosition.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace skyvane {

/// Whether the numbers mean a place at all.
bool isOnEarth(const ChartPosition& place);

/// Where an aircraft is along a row of positions.
struct RoutePlace {
    double index = 0.0;          ///< Between two positions a share of the way.
    double distanceMetres = 0.0; ///< From the nearest point of the row: how far beside it, or before or behind it.
};

/// Follows an aircraft along a row of positions. Where the row meets itself, as a holding does, it goes on from where
/// the aircraft was rather than to another turn; at first it takes the beginning. Great circles are straight lines
/// here: good within some hundred kilometres of the aircraft.
class RoutePlaceFinder {
public:
    /// Another row from now on.
    void reset() { last_ = 0.0; }
    /// Nothing for fewer than two positions, or without a place on the earth.
    std::optional<RoutePlace> find(const std::vector<ChartPosition>& row, const ChartPosition& aircraft);

private:
    double last_ = 0.0;
};

} // namespace skyvane

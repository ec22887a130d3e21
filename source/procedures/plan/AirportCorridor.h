#pragma once

#include "chart/geodesy/ChartPosition.h"

#include <cstdint>
#include <vector>

namespace skyvane {

class FlightPlan;
class IChartElementSource;

/// An airport beside the path of a flight plan.
struct AirportRecord {
    int chartIndex = 0;
    double distance = 0.0; ///< From the path, in metres.
    uint64_t order = 0;    ///< Rises along the path.
};
inline bool isAirportRecordSmaller(const AirportRecord& a, const AirportRecord& b) {
    return a.order < b.order;
}

/// Kinds of airports beside the ordinary ones. Closed airports never count.
struct AirportKinds {
    bool heliports = true;
    bool privates = true;
    bool gliders = true;
    bool military = true;
    bool withoutRunways = true;
};

/// The airports at most half a width, in metres, beside the path from the current procedure on, in the order in which
/// it passes them nearest. Measured in each airport's local frame.
std::vector<AirportRecord> findAirportsInCorridor(FlightPlan& plan, IChartElementSource& charts, double width,
                                                  const AirportKinds& kinds);

} // namespace skyvane

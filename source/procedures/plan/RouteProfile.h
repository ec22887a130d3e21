#pragma once

#include "procedures/framework/ProcedureValues.h"
#include "terrain/paging/TerrainRequests.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace skyvane {

class FlightPlan;

/// The ground along a flight plan: a row of places at equal distances, for which the terrain gives heights.
struct RouteProfile : PointCall {
    struct Mark {
        int chartIndex = 0;          ///< Of the element that a procedure leads to.
        double distanceMetres = 0.0; ///< Along the path, where the procedure ends.
    };
    /// Where a procedure ends.
    struct Stop {
        ProcedureLocation location;
        double distanceMetres = 0.0; ///< Along the path.
        double altitudeMetres = 0.0; ///< Of the path.
        bool isAltitudeSet = false;  ///< Somebody chose an altitude for it.
    };
    using PointCall::PointCall;

    std::vector<float> pathAltitudes; ///< Metres, one for each place.
    std::vector<Mark> marks;
    std::vector<Stop> stops; ///< Of every procedure that has a path.
    double totalMetres = 0.0;
};

/// Over the paths from the current procedure to the end. Null for fewer than two elements, or two points.
std::unique_ptr<RouteProfile> createPointCallFromProcedures(FlightPlan& plan, ITerrainPointCallback* caller,
                                                            int points);

/// Paints the ground of a filled profile, ARGB, a column for each place, the highest ground at the top row and the
/// lowest at the bottom one: the colour of each height, transparent above the ground.
void paintSideProfile(const PointCall& profile, int rows, uint32_t* pixels);

} // namespace skyvane

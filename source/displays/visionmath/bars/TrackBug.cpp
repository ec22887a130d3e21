#include "displays/visionmath/bars/TrackBug.h"

#include "chart/geodesy/Angles.h"

#include <cmath>

namespace skyvane {

TrackBug placeTrackBug(double headingDegrees, double directionDegrees, double bandDegrees) {
    const double half = 0.5 * bandDegrees;
    double offset = Angle180(directionDegrees - headingDegrees);
    if (offset <= -180.0)
        offset += 360.0;
    TrackBug bug;
    bug.isLeft = offset < 0.0;
    bug.isBeyond = std::abs(offset) > half;
    bug.offsetDegrees = bug.isBeyond ? std::copysign(half, offset) : offset;
    return bug;
}

} // namespace skyvane

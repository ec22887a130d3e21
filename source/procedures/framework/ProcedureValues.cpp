#include "procedures/framework/ProcedureValues.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

double limited(double value, double least, double most, double fallback) {
    return std::isfinite(value) ? std::clamp(value, least, most) : fallback;
}

} // namespace

ProcedureValues ProcedureValues::checked() const {
    const ProcedureValues standard;
    ProcedureValues result = *this;
    result.targetTurnRate = limited(std::fabs(targetTurnRate), LeastTurnRate, MostTurnRate, standard.targetTurnRate);
    result.targetGroundSpeed = limited(std::fabs(targetGroundSpeed), 0.0, MostGroundSpeed, standard.targetGroundSpeed);
    if (hasTargetAltitude())
        result.targetAltitude = limited(targetAltitude, -HighestAltitude, HighestAltitude, NoAltitude);
    result.positionTolerance = limited(positionTolerance, 0.0, MostTolerance, standard.positionTolerance);
    result.altitudeTolerance = limited(altitudeTolerance, 0.0, MostTolerance, standard.altitudeTolerance);
    result.speedTolerance = limited(speedTolerance, 0.0, MostGroundSpeed, standard.speedTolerance);
    return result;
}

} // namespace skyvane

#include "flightfeed/flight/FlightState.h"

#include "flightfeed/flight/Units.h"

#include <cmath>

namespace skyvane {

double ballAngleDegrees(const FlightState& state) {
    return toDegrees(std::atan2(-state.specificForceRight, -state.specificForceDown));
}

} // namespace skyvane

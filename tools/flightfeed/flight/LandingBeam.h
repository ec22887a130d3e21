#pragma once

#include "flightfeed/card/FlightCard.h"
#include "flightfeed/flight/FlightState.h"

namespace skyvane {

/// Where a place lies, seen along a runway's course from its threshold.
struct RunwayOffset {
    double beforeMetres; ///< ahead of the threshold, on the side of the approach
    double rightMetres;  ///< of the extended centreline
};
RunwayOffset runwayOffset(const CardRunway& runway, const GroundPoint& point);

/// The height of the glide path there. It crosses the threshold at 50 feet.
double glidePathMetres(const CardRunway& runway, double beforeMetres);

/// Sets the deviations from localizer and glideslope. Full deflection, 2.5 dots, is 105 m at the threshold for the
/// localizer, whose antenna stands 300 m behind the runway, and 0.7 degrees for the glideslope.
void setLandingBeam(const CardRunway& runway, FlightState& state);

} // namespace skyvane

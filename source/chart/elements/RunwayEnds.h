#pragma once

#include "chart/geodesy/ChartPosition.h"
#include "core/geometry/EngineMath.h"

namespace skyvane {

class AirportElement;
struct Runway;

// What is known of a runway's ends, or can be told from the rest. `primary` is the first end. The result says whether
// the value is known; otherwise it is the best guess.

/// The end's own elevation, else the airport's.
bool selectThreshholdElevation(const AirportElement* airport, const Runway* runway, bool primary, int& feet);

/// The end's own position, else one laid out from the other end, or half a runway from the airport's reference point,
/// along the runway's direction. A runway of unknown length counts as 600 m long, any as 10 m at least.
bool selectThreshholdPosition(const AirportElement* airport, const Runway* runway, bool primary,
                              ChartPosition& position);

/// Sets parallel runways apart that were laid out on the same point: when the first end's name ends in L or R, both
/// points, in the airport's local frame, move sideways.
void correctThreshholdPosition(const Runway* runway, irr::core::vector3d<double>& first,
                               irr::core::vector3d<double>& second);

/// The bearing from that end's threshold to the other, else the stored direction, in degrees.
bool selectRunwayDirection(const Runway* runway, bool primary, double& course);

} // namespace skyvane

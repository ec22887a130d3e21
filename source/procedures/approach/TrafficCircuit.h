#pragma once

#include "procedures/approach/ApproachPath.h"

namespace skyvane {

/// A traffic pattern: the shortest way to the nearest part of the circuit, along it to the threshold, then from the
/// runway's far end around the circuit again, up to where it was entered.
///
/// The circuit lies to the left of the landing direction or to the right of it, at its altitude in metres above mean
/// sea level. Its base leg is long enough to descend at the slope of final, and longer where the final approach fix
/// lies beyond the extended centre line; final meets the runway at 65 degrees at most. What leads to the circuit and
/// what climbs out to it are transitions. A pure function that never fails, for any thread.
CourseList trafficPatternApproach(const ApproachPath& path, bool isLeftTraffic, double circuitAltitude,
                                  const ApproachStart& start);

} // namespace skyvane

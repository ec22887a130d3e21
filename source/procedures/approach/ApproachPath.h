#pragma once

#include "procedures/course/CourseElement.h"

#include <optional>
#include <string>

namespace skyvane {

// The paths of approaches as course lists. Pure functions that never fail, for any thread. Altitudes, elevations and
// tolerances in metres above mean sea level, courses in degrees true, speeds in knots, rates in degrees per second.

/// What an approach flies along, whatever its kind.
struct ApproachPath {
    ChartPosition threshold;
    double thresholdElevation = 0.0;
    ChartPosition farThreshold; ///< The runway's other end.
    double course = 0.0;        ///< Of the runway, in the direction of landing.
    ChartPosition faf;          ///< The final approach fix, where final begins.
    double fafAltitude = 0.0;
    double groundSpeed = 0.0;
    double turnRate = 0.0;                   ///< Of the way to the approach; its own turns are standard rate turns.
    std::optional<double> altitudeTolerance; ///< Where altitudes are watched: the path keeps clear of the ground by it.
};

/// Final never meets the runway at more than this.
constexpr double SteepestFinalDegrees = 65.0;

/// By how far final is turned from the runway's course: -180 to 180, positive clockwise.
double calcFinalOffset(const ApproachPath& path);

/// The fix, brought round the threshold as far as final needs to meet the runway at the steepest angle.
ChartPosition limitFinalFix(const ApproachPath& path);

/// What the pilot must hear of a fix that had to be moved; empty when it stays.
std::string finalWarning(const ApproachPath& path);

/// From where it is flown.
struct ApproachStart {
    ChartPosition position;
    double altitude = 0.0;
    double course = 0.0;
};

/// From the final approach fix to the threshold, which is crossed at 20 m, or at one and a half tolerances.
CourseList finalLeg(const ApproachPath& path);

/// The shortest way to the final approach fix, then final.
CourseList straightInApproach(const ApproachPath& path, const ApproachStart& start);

} // namespace skyvane

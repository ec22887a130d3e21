#include "procedures/approach/ApproachPath.h"

#include "chart/geodesy/Angles.h"
#include "chart/geodesy/EarthConstants.h"
#include "chart/geodesy/GreatCircle.h"
#include "chart/geodesy/LocalFrame.h"
#include "core/text/Numbers.h"
#include "procedures/course/CourseLines.h"
#include "procedures/course/PerfectEntry.h"

#include <cmath>

namespace skyvane {

namespace {

constexpr double CrossingHeightMetres = 20.0;
constexpr double CrossingTolerances = 1.5;

bool isTooSteep(const ApproachPath& path) {
    return std::fabs(calcFinalOffset(path)) > SteepestFinalDegrees;
}

} // namespace

double calcFinalOffset(const ApproachPath& path) {
    return Angle180(calcBearing2(path.faf, path.threshold) - path.course);
}

ChartPosition limitFinalFix(const ApproachPath& path) {
    if (!isTooSteep(path))
        return path.faf;
    const double course = path.course + std::copysign(SteepestFinalDegrees, calcFinalOffset(path));
    const double metres = calcDistance2(path.faf, path.threshold), radians = course / DegreesPerRadian;
    return Vector3df642ChartPosition(path.threshold, {-std::sin(radians) * metres, 0.0, -std::cos(radians) * metres});
}

std::string finalWarning(const ApproachPath& path) {
    if (!isTooSteep(path))
        return "";
    const int degrees = roundHalfAway(std::fabs(calcFinalOffset(path)));
    return "WARNING: Final at " + toText(degrees) + " degrees to the runway\nwas turned to " +
           toText(roundHalfAway(SteepestFinalDegrees));
}

CourseList finalLeg(const ApproachPath& path) {
    const double height = path.altitudeTolerance ? CrossingTolerances * *path.altitudeTolerance : CrossingHeightMetres;
    return calcLine(path.faf, path.threshold, path.fafAltitude, path.thresholdElevation + height, 1, false);
}

CourseList straightInApproach(const ApproachPath& path, const ApproachStart& start) {
    CourseList list = calcPerfectEntry(start.position, start.altitude, start.course, path.faf, path.fafAltitude,
                                       calcBearing2(path.faf, path.threshold), path.groundSpeed, path.turnRate);
    list.splice(list.end(), finalLeg(path));
    return list;
}

} // namespace skyvane

#include "procedures/approach/ApproachPath.h"

#include "chart/geodesy/GreatCircle.h"
#include "procedures/course/CourseLines.h"
#include "procedures/course/PerfectEntry.h"

namespace skyvane {

namespace {

constexpr double CrossingHeightMetres = 20.0;
constexpr double CrossingTolerances = 1.5;

} // namespace

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

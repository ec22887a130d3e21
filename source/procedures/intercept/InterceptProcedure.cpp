#include "procedures/intercept/InterceptProcedure.h"

#include "chart/geodesy/Angles.h"
#include "chart/geodesy/EarthConstants.h"
#include "chart/geodesy/LocalFrame.h"
#include "core/text/Numbers.h"
#include "procedures/course/CourseCleansing.h"
#include "procedures/course/Interception.h"
#include "procedures/framework/ProcedureKeys.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

constexpr double StepDegrees = 15.0;
constexpr double LeastAltitudeChange = 5.0;
constexpr double MetresBeyond = 100.0;
constexpr double LargestCourse = 720.0;

/// So that the end lies beyond the last point of the line.
void goBeyond(CourseList& list) {
    CourseElement end = list.back();
    const double course = end.course / DegreesPerRadian;
    end.position = Vector3df642ChartPosition(end.position,
                                             {std::sin(course) * MetresBeyond, 0.0, std::cos(course) * MetresBeyond});
    list.push_back(end);
}

} // namespace

InterceptProcedure::InterceptProcedure(IChartElementSource* charts, int elementIndex, const Line& line,
                                       IProcedureFactory* factory)
    : IProcedure(factory), line_(line) {
    line_.interceptOffset = std::clamp(line.interceptOffset, LeastOffset, MostOffset);
    setLocation(charts, elementIndex);
    makeName(charts);
}

std::unique_ptr<InterceptProcedure> InterceptProcedure::createFromIni(IChartElementSource* charts, IniFile* document,
                                                                      const std::string& section, unsigned index,
                                                                      IProcedureFactory* factory) {
    auto intercept = std::make_unique<InterceptProcedure>(nullptr, 0, Line(), factory);
    if (!intercept->readCommonKeys(charts, document, section, index))
        return nullptr;
    const ProcedureKeys keys(*document, section, index);
    Line& line = intercept->line_;
    line.courseToElement = keys.number("courseToElement", line.courseToElement, -LargestCourse, LargestCourse);
    line.interceptOffset = keys.number("interceptOffset", line.interceptOffset, LeastOffset, MostOffset);
    line.to = keys.flag("to", line.to);
    intercept->makeName(charts);
    return intercept;
}

void InterceptProcedure::makeName(IChartElementSource* charts) {
    const int radial = roundHalfAway(Angle0to360(line_.courseToElement + 180.0));
    name_ = "Intercept: " + getLocationName(charts) + " " + toText(radial) + (line_.to ? " (to)" : " (from)");
}

void InterceptProcedure::insertInIni(IChartElementSource* charts, IniFile* document, const std::string& section,
                                     unsigned index) {
    IProcedure::insertInIni(charts, document, section, index);
    ProcedureKeys keys(*document, section, index);
    keys.setNumber("courseToElement", line_.courseToElement);
    keys.setNumber("interceptOffset", line_.interceptOffset);
    keys.setFlag("to", line_.to);
}

void InterceptProcedure::calculateCourseList(ChartPosition position, double altitude, double course) {
    if (!isLocationKnown())
        return setCourseList({});
    // The geometry wants the radial: the direction in which the line leaves the element.
    CourseList list = calculateInterception(
        position, course, altitude, location_.position, line_.courseToElement + 180.0, altitude, values_.targetTurnRate,
        values_.targetGroundSpeed, line_.to, line_.interceptOffset, StepDegrees, false);
    if (values_.hasTargetAltitude())
        applyAltitudeChange(list, values_.targetAltitude - altitude, LeastAltitudeChange);
    if (!list.empty())
        goBeyond(list);
    setCourseList(std::move(list));
}

} // namespace skyvane

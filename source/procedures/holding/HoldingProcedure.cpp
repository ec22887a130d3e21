#include "procedures/holding/HoldingProcedure.h"

#include "chart/geodesy/Angles.h"
#include "procedures/course/CourseLines.h"
#include "procedures/course/CourseTurns.h"
#include "procedures/course/PerfectEntry.h"
#include "procedures/framework/ProcedureKeys.h"

#include <iterator>

namespace skyvane {
namespace {

constexpr double StepDegrees = 15.0;
constexpr int LegLevels = 1;
constexpr double LongestLeg = 500.0;
constexpr double LargestCourse = 720.0;
constexpr const char* NamePrefix = "Holding at: ";

/// Appends a part but for its end, which is where the next one begins.
ChartPosition append(CourseList& list, CourseList part) {
    const ChartPosition end = part.back().position;
    part.pop_back();
    list.splice(list.end(), part);
    return end;
}

} // namespace

HoldingProcedure::HoldingProcedure(IChartElementSource* charts, int elementIndex, const Pattern& pattern,
                                   IProcedureFactory* factory)
    : IProcedure(factory), pattern_(pattern) {
    setLocation(charts, elementIndex);
    name_ = NamePrefix + getLocationName(charts);
}

HoldingProcedure::HoldingProcedure(ChartPosition position, const Pattern& pattern, IProcedureFactory* factory)
    : IProcedure(factory), pattern_(pattern) {
    setLocation(position);
    name_ = NamePrefix + getLocationName(nullptr);
}

std::unique_ptr<HoldingProcedure> HoldingProcedure::createHere(ChartPosition position, const Pattern& pattern,
                                                               IProcedureFactory* factory) {
    auto holding = std::make_unique<HoldingProcedure>(position, pattern, factory);
    holding->location_.type = ProcedureLocation::None;
    return holding;
}

std::unique_ptr<HoldingProcedure> HoldingProcedure::createFromIni(IChartElementSource* charts, IniFile* document,
                                                                  const std::string& section, unsigned index,
                                                                  IProcedureFactory* factory) {
    auto holding = std::make_unique<HoldingProcedure>(ChartPosition(), Pattern(), factory);
    if (!holding->readCommonKeys(charts, document, section, index))
        return nullptr;
    holding->name_ = NamePrefix + holding->getLocationName(charts);
    const ProcedureKeys keys(*document, section, index);
    Pattern& pattern = holding->pattern_;
    pattern.course = keys.number("course", pattern.course, -LargestCourse, LargestCourse);
    pattern.dmedistance = keys.number("dmedistance", pattern.dmedistance, 0.0, LongestLeg);
    pattern.rightturns = keys.flag("rightturns", pattern.rightturns);
    return holding;
}

void HoldingProcedure::insertInIni(IChartElementSource* charts, IniFile* document, const std::string& section,
                                   unsigned index) {
    IProcedure::insertInIni(charts, document, section, index);
    ProcedureKeys keys(*document, section, index);
    keys.setNumber("course", pattern_.course);
    keys.setNumber("dmedistance", pattern_.dmedistance);
    keys.setFlag("rightturns", pattern_.rightturns);
}

void HoldingProcedure::calculateCourseList(ChartPosition position, double altitude, double course) {
    if (!isLocationKnown())
        return setCourseList({});
    const double patternAltitude = values_.hasTargetAltitude() ? values_.targetAltitude : altitude;
    CourseList list;
    if (location_.type != ProcedureLocation::None)
        list = calcPerfectEntry(position, altitude, course, location_.position, patternAltitude, pattern_.course,
                                values_.targetGroundSpeed, values_.targetTurnRate);
    list.splice(list.end(), makeRacetrack(patternAltitude));
    setCourseList(std::move(list));
}

/// Each half turn in two quarters, since a turn takes the shorter way.
CourseList HoldingProcedure::makeRacetrack(double altitude) const {
    const double quarter = pattern_.rightturns ? 90.0 : -90.0;
    const double inbound = pattern_.course;
    const auto turn = [&](const ChartPosition& from, int quarters) {
        return calcTurn(from, inbound + quarter * quarters, inbound + quarter * (quarters + 1), values_.targetTurnRate,
                        values_.targetGroundSpeed, static_cast<float>(altitude), static_cast<float>(altitude), false,
                        StepDegrees, true);
    };
    CourseList list;
    ChartPosition place = append(list, turn(location_.position, 0));
    place = append(list, turn(place, 1));
    place = append(list, calcLine(place, Angle0to360(inbound + 2.0 * quarter), pattern_.dmedistance, altitude, altitude,
                                  LegLevels, false));
    place = append(list, turn(place, 2));
    place = append(list, turn(place, 3));
    list.splice(list.end(), calcLine(place, location_.position, altitude, altitude, LegLevels, false));
    return list;
}

} // namespace skyvane

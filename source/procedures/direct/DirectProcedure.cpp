#include "procedures/direct/DirectProcedure.h"

#include "procedures/course/CourseTurns.h"

namespace skyvane {
namespace {

constexpr double StepDegrees = 15.0;
constexpr const char* NamePrefix = "Direct: ";

} // namespace

DirectProcedure::DirectProcedure(IChartElementSource* charts, int elementIndex, IProcedureFactory* factory)
    : IProcedure(factory) {
    setLocation(charts, elementIndex);
    name_ = NamePrefix + getLocationName(charts);
}

DirectProcedure::DirectProcedure(ChartPosition position, IProcedureFactory* factory) : IProcedure(factory) {
    setLocation(position);
    name_ = NamePrefix + getLocationName(nullptr);
}

std::unique_ptr<DirectProcedure> DirectProcedure::createFromIni(IChartElementSource* charts, IniFile* document,
                                                                const std::string& section, unsigned index,
                                                                IProcedureFactory* factory) {
    auto direct = std::make_unique<DirectProcedure>(ChartPosition(), factory);
    if (!direct->readCommonKeys(charts, document, section, index))
        return nullptr;
    direct->name_ = NamePrefix + direct->getLocationName(charts);
    return direct;
}

void DirectProcedure::calculateCourseList(ChartPosition position, double altitude, double course) {
    if (!isLocationKnown())
        return setCourseList({});
    const double endAltitude = values_.hasTargetAltitude() ? values_.targetAltitude : altitude;
    setCourseList(calcDirectWithStartingTurn(position, course, location_.position, StepDegrees,
                                             values_.targetGroundSpeed, values_.targetTurnRate, altitude, endAltitude,
                                             false));
}

} // namespace skyvane

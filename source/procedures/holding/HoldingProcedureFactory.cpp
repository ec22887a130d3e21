#include "procedures/holding/HoldingProcedureFactory.h"

#include "chart/elements/IChartElement.h"
#include "chart/geodesy/EarthConstants.h"
#include "chart/geodesy/GreatCircle.h"
#include "procedures/aircraft/profiles/Aircraft.h"
#include "procedures/framework/FlightReadings.h"
#include "procedures/framework/IProcedureHost.h"

namespace skyvane {
namespace {

constexpr double StandardTurnRadians = 0.052359877566666664; // 3 degrees a second
constexpr double UnknownSpeedLimitMetres = 2358.0396365416254;

/// Two radii of a standard turn: nearer to the fix, the way from here says nothing about the way in.
double courseLimitMetres(const Aircraft& aircraft) {
    if (aircraft.Vno < 0)
        return UnknownSpeedLimitMetres;
    return 2.0 * (aircraft.Vno * MetresPerNauticalMile / 3600.0) / StandardTurnRadians;
}

} // namespace

bool HoldingProcedureFactory::areProceduresPossible(IChartElement* element) {
    return !element || (element->getAreaDefiningPointCount() == 1 && element->getType() != IChartElement::OBSTRUCTION &&
                        element->getType() != IChartElement::AIRPORT);
}

std::list<IndicatedProcedure> HoldingProcedureFactory::getPossibleProcedures(IChartElement* element, int id) {
    std::list<IndicatedProcedure> lines = getOnlyProcedure(element, id);
    if (!element)
        for (IndicatedProcedure& line : lines)
            line.parameters[CurrentPositionParameter] = "1";
    return lines;
}

void HoldingProcedureFactory::prepare(const IndicatedProcedure& procedure, IChartElement* element) {
    const auto here = procedure.parameters.find(CurrentPositionParameter);
    atElement_ = element && (here == procedure.parameters.end() || here->second != "1");
    chartIndex_ = procedure.chartIndex;
    position_ = ChartPosition();
    int altitudeFeet = 0;
    if (atElement_)
        position_ = element->getPosition();
    else
        fillAltAndPos(position_.longitude, position_.latitude, altitudeFeet);
    pattern_ = HoldingProcedure::Pattern();
    pattern_.course = defaultCourse(atElement_ ? element : nullptr);
    setGeneralStandardValues();
}

double HoldingProcedureFactory::defaultCourse(const IChartElement* element) {
    const FlightReadings readings = readFlight(*getHost()->getSensorManager());
    if (element && readings.position &&
        calcDistance2(*readings.position, element->getPosition()) >= courseLimitMetres(getHost()->getCurrentAircraft()))
        return calcBearing2(*readings.position, element->getPosition());
    return readings.heading.value_or(0.0);
}

std::unique_ptr<IProcedure> HoldingProcedureFactory::Create() {
    auto holding = atElement_ ? std::make_unique<HoldingProcedure>(getHost()->getCharts(), chartIndex_, pattern_, this)
                              : HoldingProcedure::createHere(position_, pattern_, this);
    writeGeneralValues(holding.get());
    return holding;
}

CourseList HoldingProcedureFactory::makePattern(double altitudeMetres) {
    const auto holding = HoldingProcedure::createHere(position_, pattern_, this);
    writeGeneralValues(holding.get());
    holding->calculateCourseList(position_, altitudeMetres, pattern_.course);
    return holding->getCourseList();
}

std::unique_ptr<IProcedure> HoldingProcedureFactory::CreateFromIni(IChartElementSource* charts, IniFile* document,
                                                                   const std::string& section, unsigned index) {
    return HoldingProcedure::createFromIni(charts, document, section, index, this);
}

} // namespace skyvane

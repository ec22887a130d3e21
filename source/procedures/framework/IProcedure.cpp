#include "procedures/framework/IProcedure.h"

#include "chart/elements/IChartElement.h"
#include "chart/geodesy/EarthConstants.h"
#include "chart/geodesy/GreatCircle.h"
#include "chart/store/IChartElementSource.h"
#include "core/ini/IniFile.h"
#include "core/text/Numbers.h"
#include "procedures/framework/IProcedureFactory.h"
#include "procedures/framework/ProcedureKeys.h"

#include <cmath>
#include <limits>
#include <utility>

namespace skyvane {
namespace {

/// An element that was moved by less is still the same.
constexpr double SameElementKilometres = 3.0;
constexpr const char* NoAltitudeText = "auto";

void readValues(const ProcedureKeys& keys, ProcedureValues& values) {
    using Limits = ProcedureValues;
    values.targetTurnRate =
        keys.number("targetTurnRate", values.targetTurnRate, Limits::LeastTurnRate, Limits::MostTurnRate);
    values.targetGroundSpeed = keys.number("targetGroundSpeed", values.targetGroundSpeed, 0.0, Limits::MostGroundSpeed);
    values.targetAltitude =
        keys.number("targetAltitude", Limits::NoAltitude, -Limits::HighestAltitude, Limits::HighestAltitude);
    values.positionTolerance = keys.number("positionTolerance", values.positionTolerance, 0.0, Limits::MostTolerance);
    values.altitudeTolerance = keys.number("altitudeTolerance", values.altitudeTolerance, 0.0, Limits::MostTolerance);
    values.speedTolerance = keys.number("speedTolerance", values.speedTolerance, 0.0, Limits::MostGroundSpeed);
    values.checkAltitude = keys.flag("checkAltitude", values.checkAltitude);
    values.checkCourse = keys.flag("checkCourse", values.checkCourse);
    values.checkGroundSpeed = keys.flag("checkGroundSpeed", values.checkGroundSpeed);
}

void writeValues(ProcedureKeys& keys, const ProcedureValues& values) {
    keys.setNumber("targetTurnRate", values.targetTurnRate);
    keys.setNumber("targetGroundSpeed", values.targetGroundSpeed);
    keys.setText("targetAltitude", values.hasTargetAltitude() ? toText(values.targetAltitude) : NoAltitudeText);
    keys.setNumber("positionTolerance", values.positionTolerance);
    keys.setNumber("altitudeTolerance", values.altitudeTolerance);
    keys.setNumber("speedTolerance", values.speedTolerance);
    keys.setFlag("checkAltitude", values.checkAltitude);
    keys.setFlag("checkCourse", values.checkCourse);
    keys.setFlag("checkGroundSpeed", values.checkGroundSpeed);
}

} // namespace

void IProcedure::updatePosRelated(ChartPosition position, double altitude, double groundSpeed, double heading) {
    const AircraftMotion flight{position, altitude, groundSpeed, heading};
    course_.follow(flight, guidance_);
    updateWarnings(flight);
}

void IProcedure::updateWarnings(const AircraftMotion& flight) {
    const bool isFlown = guidance_.length >= 0.0;
    const double speedError = std::fabs(std::fabs(values_.targetGroundSpeed) - std::fabs(flight.groundSpeed));
    groundSpeedWarning_ = isFlown && values_.checkGroundSpeed && speedError > values_.speedTolerance;
    altitudeWarning_ = isFlown && values_.checkAltitude &&
                       std::fabs(flight.altitude - guidance_.closestAltitude) > values_.altitudeTolerance;
    courseWarning_ = isFlown && values_.checkCourse && guidance_.closestDistanceMetres > values_.positionTolerance;
}

bool IProcedure::shallSwitchToNextProc() {
    return std::exchange(guidance_.finished, false);
}

double IProcedure::calcTotalLength() const {
    return course_.getTotalMetres() / MetresPerNauticalMile;
}

void IProcedure::insertInIni(IChartElementSource*, IniFile* document, const std::string& section, unsigned index) {
    ProcedureKeys keys(*document, section, index);
    keys.setText("name", factory_ ? factory_->getName() : getName());
    keys.setNumber("loctype", location_.type);
    keys.setPosition("locpos", location_.position);
    writeValues(keys, values_);
    if (location_.type == ProcedureLocation::ChartElement)
        keys.setNumber("ownType", location_.elementType);
}

bool IProcedure::readCommonKeys(IChartElementSource* charts, IniFile* document, const std::string& section,
                                unsigned index) {
    const ProcedureKeys keys(*document, section, index);
    readValues(keys, values_);
    location_ = ProcedureLocation();
    if (!keys.position("locpos", location_.position))
        return false;
    location_.type = static_cast<ProcedureLocation::Type>(static_cast<int>(keys.number(
        "loctype", ProcedureLocation::PlainPosition, ProcedureLocation::None, ProcedureLocation::ChartElement)));
    location_.elementType = static_cast<int>(keys.number("ownType", -1.0, 0.0, IChartElement::TypeCount - 1));
    if (location_.type == ProcedureLocation::ChartElement)
        findElementAgain(charts);
    return true;
}

void IProcedure::OnChartChanged(IChartElementSource* charts) {
    if (location_.type == ProcedureLocation::ChartElement)
        findElementAgain(charts);
}

void IProcedure::findElementAgain(IChartElementSource* charts) {
    double least = std::numeric_limits<double>::infinity();
    const double range = SameElementKilometres * 1000.0 / MetresPerNauticalMile;
    const std::list<int> near =
        charts ? charts->findChartElementsInVicinity(location_.position, range, false) : std::list<int>();
    location_.type = ProcedureLocation::PlainPosition;
    for (const int id : near) {
        const IChartElement* element = charts->getChartElement(id);
        if (!element || element->getType() != location_.elementType)
            continue;
        const double distance = calcDistance2(location_.position, element->getPosition());
        if (distance >= least)
            continue;
        least = distance;
        location_.type = ProcedureLocation::ChartElement;
        location_.chartIndex = id;
    }
}

void IProcedure::setLocation(const ChartPosition& position) {
    location_ = {ProcedureLocation::PlainPosition, 0, -1, position};
}

bool IProcedure::setLocation(IChartElementSource* charts, int chartIndex) {
    const IChartElement* element = charts ? charts->getChartElement(chartIndex) : nullptr;
    if (!element) {
        location_ = {ProcedureLocation::ChartElement, chartIndex, -1, ChartPosition()};
        return false;
    }
    location_ = {ProcedureLocation::ChartElement, chartIndex, element->getType(), element->getPosition()};
    return true;
}

bool IProcedure::isLocationKnown() const {
    return location_.type != ProcedureLocation::ChartElement || location_.elementType >= 0;
}

std::string IProcedure::getLocationName(IChartElementSource* charts) const {
    const IChartElement* element = charts && location_.type == ProcedureLocation::ChartElement
                                       ? charts->getChartElement(location_.chartIndex)
                                       : nullptr;
    return element ? element->getIndicatedLabel(true, false) : "User Position";
}

} // namespace skyvane

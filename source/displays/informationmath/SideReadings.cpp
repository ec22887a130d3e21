#include "displays/informationmath/SideReadings.h"

#include "chart/geodesy/EarthConstants.h"
#include "displays/gauges/DialFlag.h"
#include "displays/gauges/SensorReading.h"
#include "displays/informationmath/RoutePlace.h"
#include "procedures/framework/FlightReadings.h"
#include "sensors/SensorManager.h"
#include "sensors/records/Attitude_Data.h"
#include "sensors/records/VerticalSpeed_Data.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

constexpr double metresPerSecondPerKnot = 0.514444444;
/// Slower, and the path's angle is nothing but noise.
constexpr double leastMetresPerSecond = 5.0;

/// Of the record, or of the satellite receiver's where that stands in for it.
bool isDoubtful(SensorManager& sensors, ISensorData::Type type) {
    DialEvidence evidence;
    evidence.finite = true;
    if (!readDefaultRecord(sensors, type, evidence) || evidence.warning == ISensor::WRONG)
        readDefaultRecord(sensors, ISensorData::GPS, evidence);
    return evidence.simulating || evidence.warning != ISensor::GOOD;
}

std::optional<double> finite(const std::optional<double>& value, double factor = 1.0) {
    return value && std::isfinite(*value) ? std::optional<double>(*value * factor) : std::nullopt;
}

template <class Record>
const Record* trusted(SensorManager& sensors, ISensorData::Type type) {
    DialEvidence evidence;
    const auto* record = readDefault<Record>(sensors, type, evidence);
    evidence.finite = true;
    return isValueShown(decideDialFlag(evidence)) ? record : nullptr;
}

} // namespace

double SideReadings::getFlightPathDegrees() const {
    if (const std::optional<double> slope = getSlope())
        return std::atan(*slope) * DegreesPerRadian;
    return pitchDegrees.value_or(0.0);
}

std::optional<double> SideReadings::getSlope() const {
    if (!climbMetresPerSecond || !groundMetresPerSecond || *groundMetresPerSecond < leastMetresPerSecond)
        return std::nullopt;
    return *climbMetresPerSecond / *groundMetresPerSecond;
}

SideReadings readSide(SensorManager& sensors) {
    SideReadings readings;
    const FlightReadings flight = readFlight(sensors);
    if (flight.position && isOnEarth(*flight.position))
        readings.position = flight.position;
    readings.altitudeMetres = finite(flight.altitude);
    readings.groundMetresPerSecond = finite(flight.groundSpeed, metresPerSecondPerKnot);
    if (const auto* climb = trusted<VerticalSpeed_Data>(sensors, ISensorData::VerticalSpeed))
        readings.climbMetresPerSecond = finite(climb->value);
    if (const auto* attitude = trusted<Attitude_Data>(sensors, ISensorData::Attitude)) {
        const double up = attitude->matrix.getForwardVector().Y;
        if (std::isfinite(up))
            readings.pitchDegrees = std::asin(std::clamp(up, -1.0, 1.0)) * DegreesPerRadian;
    }
    readings.isDoubtful = isDoubtful(sensors, ISensorData::Position) || isDoubtful(sensors, ISensorData::Altitude);
    return readings;
}

} // namespace skyvane

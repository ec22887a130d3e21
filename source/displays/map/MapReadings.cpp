#include "displays/map/MapReadings.h"

#include "sensors/SensorManager.h"
#include "sensors/records/Heading_Data.h"
#include "sensors/records/Position_Data.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

/// A simulated flight is no real one, though it is what the pilot has chosen.
ISensor::WarningLevel levelOf(SensorManager& sensors, ISensor& sensor, ISensorData::Type type) {
    return sensors.isSimulationActive() ? ISensor::MAYBE_WRONG : sensor.getWarning(type);
}

template <class Record>
const Record* read(SensorManager& sensors, ISensorData::Type type, ISensor::WarningLevel& level) {
    level = ISensor::WRONG;
    ISensor* sensor = sensors.getDefaultSensor(type);
    const Record* record = sensor ? static_cast<const Record*>(sensor->getData(type)) : nullptr;
    if (record)
        level = levelOf(sensors, *sensor, type);
    return record;
}

} // namespace

void MapReadings::update(SensorManager& sensors) {
    const auto* place = read<Position_Data>(sensors, ISensorData::Position, positionLevel);
    const bool isUsable = place && std::isfinite(place->longitude) && std::isfinite(place->latitude) &&
                          std::fabs(place->latitude) <= 90.0;
    if (!isUsable)
        positionLevel = ISensor::WRONG;
    // What a sensor shows before its first data is no place.
    if (isUsable && (hasPosition || positionLevel != ISensor::WRONG)) {
        position = ChartPosition(place->longitude, place->latitude);
        hasPosition = true;
    }
    const auto* heading = read<Heading_Data>(sensors, ISensorData::Heading, headingLevel);
    if (heading && std::isfinite(heading->value))
        headingDegrees = heading->value;
    else
        headingLevel = ISensor::WRONG;
    const double altitude = sensors.getIndicatedAltitude();
    ISensor* source = sensors.getDefaultSensor(sensors.getIndicatedAltitudeSource());
    const bool isKnown = source && source->getData(sensors.getIndicatedAltitudeSource()) && std::isfinite(altitude);
    altitudeLevel = isKnown ? levelOf(sensors, *source, sensors.getIndicatedAltitudeSource()) : ISensor::WRONG;
    altitudeMetres = altitudeLevel != ISensor::WRONG ? altitude : std::numeric_limits<double>::quiet_NaN();
}

ISensor::WarningLevel MapReadings::getWorst() const {
    return std::max(positionLevel, headingLevel);
}

} // namespace skyvane

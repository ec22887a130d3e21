#include "procedures/framework/FlightReadings.h"

#include "sensors/SensorManager.h"
#include "sensors/records/Altitude_Data.h"
#include "sensors/records/GPS_Data.h"
#include "sensors/records/GroundSpeed_Data.h"
#include "sensors/records/Heading_Data.h"
#include "sensors/records/Position_Data.h"

namespace skyvane {
namespace {

/// A simulated flight is what the pilot has chosen, though its sensor never calls its data right.
template <class Record>
const Record* trusted(SensorManager& sensors, ISensorData::Type type) {
    ISensor* sensor = sensors.getDefaultSensor(type);
    if (!sensor) // none before the first settings are loaded
        return nullptr;
    if (sensor->getWarning(type) == ISensor::WRONG && !sensors.isSimulationActive())
        return nullptr;
    return static_cast<const Record*>(sensor->getData(type));
}

} // namespace

AircraftMotion FlightReadings::state() const {
    return {*position, *altitude, groundSpeed.value_or(0.0), heading.value_or(0.0)};
}

FlightReadings readFlight(SensorManager& sensors) {
    FlightReadings readings;
    if (const auto* position = trusted<Position_Data>(sensors, ISensorData::Position))
        readings.position = ChartPosition(position->longitude, position->latitude);
    if (const auto* altitude = trusted<Altitude_Data>(sensors, ISensorData::Altitude))
        readings.altitude = altitude->value;
    if (const auto* speed = trusted<GroundSpeed_Data>(sensors, ISensorData::GroundSpeed))
        readings.groundSpeed = speed->value;
    if (const auto* heading = trusted<Heading_Data>(sensors, ISensorData::Heading))
        readings.heading = heading->value;
    const auto* gps = trusted<GPS_Data>(sensors, ISensorData::GPS);
    if (!gps)
        return readings;
    if (!readings.position && gps->positionAvailable)
        readings.position = ChartPosition(gps->longitude, gps->latitude);
    if (!readings.altitude && gps->altitudeAvailable)
        readings.altitude = gps->altitude;
    if (!readings.groundSpeed && gps->speedAvailable)
        readings.groundSpeed = gps->groundSpeed;
    if (!readings.heading && gps->groundTrackAvailable)
        readings.heading = gps->groundTrack;
    return readings;
}

} // namespace skyvane

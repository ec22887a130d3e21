#include "chart/geodesy/ChartPosition.h"
#include "chart/geodesy/EarthConstants.h"
#include "core/time/Time.h"
#include "sensors/ISensorHost.h"
#include "sensors/SensorManager.h"
#include "sensors/SimulatorSensor.h"
#include "sensors/records/Altitude_Data.h"
#include "sensors/records/Attitude_Data.h"
#include "sensors/records/GPS_Data.h"
#include "sensors/records/Heading_Data.h"
#include "sensors/records/Position_Data.h"

namespace skyvane {
namespace {

constexpr int WarningMilliseconds = 5000;

template <class Record>
Record* recordOf(SimulatorSensor& sensor, ISensorData::Type type) {
    return static_cast<Record*>(sensor.getData(type));
}

} // namespace

void SensorManager::startSimulation(const ChartPosition& position, int heading, int altitude) {
    if (!simulator_)
        return;
    simulating_ = true;
    // The time stamps let readers see that these are new samples.
    const unsigned now = MilliSecs();
    if (auto* record = recordOf<Position_Data>(*simulator_, ISensorData::Position)) {
        record->longitude = position.longitude;
        record->latitude = position.latitude;
        record->timeStamp = now;
    }
    if (auto* record = recordOf<GPS_Data>(*simulator_, ISensorData::GPS)) {
        record->latitude = position.latitude;
        record->longitude = position.longitude;
        record->altitude = altitude;
        record->groundTrack = heading;
        record->timeStamp = now;
    }
    if (auto* record = recordOf<Altitude_Data>(*simulator_, ISensorData::Altitude)) {
        record->value = altitude;
        record->timeStamp = now;
    }
    if (auto* record = recordOf<Heading_Data>(*simulator_, ISensorData::Heading)) {
        record->value = heading;
        record->timeStamp = now;
    }
    if (auto* record = recordOf<Attitude_Data>(*simulator_, ISensorData::Attitude)) {
        record->matrix = createYawMatrix(heading / DegreesPerRadian);
        record->timeStamp = now;
    }
    host_->setMessage(&simulating_, "Warning: Simulation active", MESSAGE_RED, WarningMilliseconds);
}

void SensorManager::stopSimulation() {
    simulating_ = false;
    host_->removeMessage(&simulating_);
}

} // namespace skyvane

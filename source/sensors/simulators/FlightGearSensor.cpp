#include "sensors/simulators/FlightGearSensor.h"

#include "core/time/Time.h"
#include "sensors/ISensorHost.h"
#include "sensors/SensorManager.h"
#include "sensors/simulators/FlightGearSensorFactory.h"

namespace skyvane {

FlightGearSensor::FlightGearSensor(FlightGearSensorFactory* factory, SensorManager* sensors, int port)
    : factory_(factory), sensors_(sensors), socket_(port) {}

std::string FlightGearSensor::getName() {
    return "FlightGearSensor";
}

std::string FlightGearSensor::getSensorDetails() {
    return "Useful in combination with the FlightGear flight simulator";
}

bool FlightGearSensor::Update() {
    if (!noticeShown_) {
        noticeShown_ = true;
        sensors_->getHost()->showMessageBox("FlightGear Sensor Interface is in use.\n"
                                            "The visualizations do NOT represent the actual situation.");
    }
    const unsigned nowMs = MilliSecs();
    bool updated = false;
    records_.ages().beginUpdate();
    for (int i = 0; i < SimulatorLink::MaxDatagramsPerUpdate; ++i) {
        const FlightGearSocket::Result result = socket_.recv(data_);
        if (result == FlightGearSocket::Result::Nothing)
            break;
        if (result == FlightGearSocket::Result::Data) {
            records_.take(data_, nowMs);
            updated = true;
        }
    }
    return updated;
}

bool FlightGearSensor::OnDatagram(const void* bytes, size_t length, unsigned nowMs) {
    if (!socket_.take(bytes, length, data_))
        return false;
    records_.take(data_, nowMs);
    return true;
}

bool FlightGearSensor::isConnected() {
    return records_.ages().isDatagramFresh(MilliSecs());
}

bool FlightGearSensor::lastTimeUpdated(ISensorData::Type type) {
    return records_.ages().wasUpdated(type);
}

ISensorData* FlightGearSensor::getData(ISensorData::Type type) {
    return records_.get(type);
}

bool FlightGearSensor::isDataTypeSupported(ISensorData::Type type) {
    return factory_->isDataTypeSupported(type);
}

std::vector<ISensorData::Type> FlightGearSensor::getSupportedDataTypes() {
    return factory_->getSupportedDataTypes();
}

ISensor::WarningLevel FlightGearSensor::getWarning(ISensorData::Type type) {
    return records_.ages().isFresh(type, MilliSecs()) ? GOOD : WRONG;
}

} // namespace skyvane

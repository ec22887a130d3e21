#include "sensors/simulators/XPlaneSensor.h"

#include "core/time/Time.h"
#include "sensors/ISensorHost.h"
#include "sensors/SensorManager.h"
#include "sensors/simulators/XPlaneSensorFactory.h"

namespace skyvane {

XPlaneSensor::XPlaneSensor(XPlaneSensorFactory* factory, SensorManager* sensors, WarningLevel level, int port,
                           int bufferSize)
    : factory_(factory), sensors_(sensors), level_(level), link_("XPlaneSensor", port, bufferSize),
      records_(sensors, factory->getSupportedDataTypes()) {}

std::string XPlaneSensor::getName() {
    return "XPlane Flight Simulator";
}

std::string XPlaneSensor::getSensorDetails() {
    return "Receives sensor data from the XPlane flight simulator";
}

bool XPlaneSensor::Update() {
    if (!noticeShown_) {
        noticeShown_ = true;
        sensors_->getHost()->showMessageBox("XPlane Sensor Interface is in use.\n"
                                            "The visualizations do NOT represent the actual situation.");
    }
    const unsigned nowMs = MilliSecs();
    bool anyCame = false;
    records_.ages().beginUpdate();
    for (int i = 0; i < SimulatorLink::MaxDatagramsPerUpdate; ++i) {
        const int length = link_.recv();
        if (length < 0)
            break;
        if (OnDatagram(link_.bytes(), static_cast<size_t>(length), nowMs))
            anyCame = true;
    }
    return anyCame;
}

bool XPlaneSensor::OnDatagram(const void* bytes, size_t length, unsigned nowMs) {
    return records_.take(bytes, length, nowMs);
}

bool XPlaneSensor::lastTimeUpdated(ISensorData::Type type) {
    return records_.ages().wasUpdated(type);
}

ISensorData* XPlaneSensor::getData(ISensorData::Type type) {
    return records_.get(type);
}

bool XPlaneSensor::isDataTypeSupported(ISensorData::Type type) {
    return factory_->isDataTypeSupported(type);
}

std::vector<ISensorData::Type> XPlaneSensor::getSupportedDataTypes() {
    return factory_->getSupportedDataTypes();
}

ISensor::WarningLevel XPlaneSensor::getWarning(ISensorData::Type type) {
    return records_.ages().isFresh(type, MilliSecs()) ? level_ : WRONG;
}

} // namespace skyvane

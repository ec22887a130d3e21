#include "sensors/NullSensor.h"

#include "sensors/SensorManager.h"

namespace skyvane {

NullSensor::NullSensor(SensorManager* manager) {
    for (int type = 0; type < ISensorData::TypeCount; ++type)
        records_[static_cast<size_t>(type)] = manager->createSensorData(static_cast<ISensorData::Type>(type));
}

ISensorData* NullSensor::getData(ISensorData::Type type) {
    return ISensorData::isType(type) ? records_[static_cast<size_t>(type)].get() : nullptr;
}

std::vector<ISensorData::Type> NullSensor::getSupportedDataTypes() {
    std::vector<ISensorData::Type> types;
    for (int type = 0; type < ISensorData::TypeCount; ++type)
        types.push_back(static_cast<ISensorData::Type>(type));
    return types;
}

} // namespace skyvane

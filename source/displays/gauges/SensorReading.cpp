#include "displays/gauges/SensorReading.h"

#include "sensors/SensorManager.h"

namespace skyvane {

ISensorData* readDefaultRecord(SensorManager& sensors, ISensorData::Type type, DialEvidence& evidence) {
    evidence = DialEvidence();
    ISensor* sensor = sensors.getDefaultSensor(type);
    if (!sensor || !sensor->isDataTypeSupported(type))
        return nullptr;
    ISensorData* record = sensor->getData(type);
    evidence.present = record != nullptr;
    evidence.warning = sensor->getWarning(type);
    evidence.simulating = sensors.isSimulationActive();
    return record;
}

} // namespace skyvane

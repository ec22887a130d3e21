#pragma once

#include "displays/gauges/DialFlag.h"
#include "sensors/records/ISensorData.h"

namespace skyvane {

class SensorManager;

/// The record of the default sensor of that type, and the trust in it, or null. `evidence.finite` is left to who looks
/// at the numbers.
ISensorData* readDefaultRecord(SensorManager& sensors, ISensorData::Type type, DialEvidence& evidence);

template <class Record>
Record* readDefault(SensorManager& sensors, ISensorData::Type type, DialEvidence& evidence) {
    return static_cast<Record*>(readDefaultRecord(sensors, type, evidence));
}

} // namespace skyvane

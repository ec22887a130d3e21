#pragma once

#include "sensors/ISensor.h"
#include "sensors/records/GPS_Data.h"

#include <vector>

namespace skyvane {

/// What follows from a receiver's record: the types that it can be published as.
std::vector<ISensorData::Type> gpsReceiverTypes();

/// How far one of those types can be trusted as far as the record itself tells (not how old it is). WRONG for every
/// other type, without a fix, and where the record lacks what the type is made of. GOOD takes more: enough satellites,
/// for what depends on the track some speed, and a known dilution of precision.
ISensor::WarningLevel gpsTrust(const GPS_Data& gps, ISensorData::Type type);

} // namespace skyvane

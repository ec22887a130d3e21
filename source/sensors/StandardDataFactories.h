#pragma once

namespace skyvane {

class SensorManager;

/// Registers the factories of all 21 record types, altitude before position.
void addStandardDataFactories(SensorManager& manager);

} // namespace skyvane

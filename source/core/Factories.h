#pragma once

namespace skyvane {

class Context;
class PanelManager;
class SensorManager;

/// Registers every kind of record, sensor, forwarder and panel. The orders are stored formats: a kind that isn't there
/// yet keeps its place, empty.
void registerSensorFactories(SensorManager& sensors);
void registerPanelFactories(Context& context, PanelManager& panels);

} // namespace skyvane

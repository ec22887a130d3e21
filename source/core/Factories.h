#pragma once

namespace skyvane {

class Context;
class PanelManager;
class ProcedureManager;
class SensorManager;

/// Registers every kind of record, sensor, forwarder, panel and procedure. The orders are stored formats: a kind that
/// isn't there yet keeps its place, empty.
void registerSensorFactories(Context& context, SensorManager& sensors);
/// In the order in which the screen of the start offers them.
void registerSensorProfiles(Context& context, SensorManager& sensors);
void registerPanelFactories(Context& context, PanelManager& panels);
void registerProcedureFactories(Context& context, ProcedureManager& procedures);

} // namespace skyvane

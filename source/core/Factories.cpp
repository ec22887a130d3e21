#include "core/Factories.h"

#include "displays/PanelManager.h"
#include "displays/instruments/AltimeterFactory.h"
#include "displays/instruments/AttitudeIndicatorFactory.h"
#include "displays/instruments/BatteryPanelFactory.h"
#include "displays/instruments/CompassFactory.h"
#include "displays/instruments/GMeterFactory.h"
#include "displays/instruments/OneSegmentPanelFactory.h"
#include "displays/instruments/SlipIndicatorFactory.h"
#include "displays/instruments/SpeedIndicatorFactory.h"
#include "displays/instruments/TurnRateIndicatorFactory.h"
#include "displays/instruments/VerticalSpeedIndicatorFactory.h"
#include "displays/instruments/WarningLampFactory.h"
#include "sensors/SensorManager.h"
#include "sensors/StandardDataFactories.h"
#include "sensors/simulators/FlightGearSensorFactory.h"
#include "sensors/simulators/XPlaneSensorFactory.h"

namespace skyvane {

void registerSensorFactories(SensorManager& sensors) {
    addStandardDataFactories(sensors);
    sensors.addSensorFactory(nullptr); // FlightStateIMUFactory
    sensors.addSensorFactory(nullptr); // LogFileSensorFactory
    sensors.addSensorFactory(nullptr); // UDPSensorFactory
    sensors.addSensorFactory(nullptr); // FlyBoxSensorFactory
    sensors.addSensorFactory(std::make_unique<FlightGearSensorFactory>(&sensors));
    sensors.addSensorFactory(std::make_unique<XPlaneSensorFactory>(&sensors));
    sensors.addSensorFactory(nullptr);          // GDL90SensorFactory
    sensors.addSensorForwarderFactory(nullptr); // LogFileForwarderFactory
    sensors.addSensorForwarderFactory(nullptr); // UDPForwarderFactory
}

void registerPanelFactories(Context& context, PanelManager& panels) {
    panels.addPanelFactory(std::make_unique<AttitudeIndicatorFactory>(&context));
    panels.addPanelFactory(std::make_unique<TurnRateIndicatorFactory>(&context));
    panels.addPanelFactory(nullptr); // Map2DFactory
    panels.addPanelFactory(nullptr); // Map3DFactory
    panels.addPanelFactory(std::make_unique<AltimeterFactory>(&context));
    panels.addPanelFactory(std::make_unique<CompassFactory>(&context));
    panels.addPanelFactory(std::make_unique<OneSegmentPanelFactory>(&context));
    panels.addPanelFactory(std::make_unique<WarningLampFactory>(&context));
    panels.addPanelFactory(std::make_unique<VerticalSpeedIndicatorFactory>(&context));
    panels.addPanelFactory(std::make_unique<SpeedIndicatorFactory>(&context));
    panels.addPanelFactory(std::make_unique<SlipIndicatorFactory>(&context));
    panels.addPanelFactory(std::make_unique<GMeterFactory>(&context));
    panels.addPanelFactory(std::make_unique<BatteryPanelFactory>(&context));
    panels.addPanelFactory(nullptr); // CheckListPanelFactory
    panels.addPanelFactory(nullptr); // GliderPanelFactory
    panels.addPanelFactory(nullptr); // DetailsPanelFactory
    panels.addPanelFactory(nullptr); // SideViewPanelFactory
    panels.addPanelFactory(nullptr); // GlideInfoPanelFactory
}

} // namespace skyvane

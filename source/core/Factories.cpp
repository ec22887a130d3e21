#include "core/Factories.h"

#include "core/Context.h"
#include "displays/PanelManager.h"
#include "displays/information/CheckListPanelFactory.h"
#include "displays/information/DetailsPanelFactory.h"
#include "displays/information/GlideInfoPanelFactory.h"
#include "displays/information/GliderPanelFactory.h"
#include "displays/information/SideViewPanelFactory.h"
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
#include "displays/map/Map2DFactory.h"
#include "displays/vision/Map3DFactory.h"
#include "gui/sensors/GDL90CalibrationWindow.h"
#include "gui/sensors/SensorDialogs.h"
#include "gui/sensors/WifiControl.h"
#include "procedures/ProcedureManager.h"
#include "procedures/dialogs/ApproachSetup.h"
#include "procedures/dialogs/DirectSetup.h"
#include "procedures/dialogs/HoldingSetup.h"
#include "procedures/dialogs/InterceptSetup.h"
#include "sensors/SensorManager.h"
#include "sensors/StandardDataFactories.h"
#include "sensors/gdl90/GDL90SensorFactory.h"
#include "sensors/log/LogFileForwarderFactory.h"
#include "sensors/log/LogFileSensorFactory.h"
#include "sensors/profiles/CustomConfig.h"
#include "sensors/profiles/ExtGPSConfig.h"
#include "sensors/profiles/FlightSimulatorConfig.h"
#include "sensors/profiles/GLD90WeatherTraffic.h"
#include "sensors/profiles/InternalGNSSConfig.h"
#include "sensors/profiles/InternalSensorConfig.h"
#include "sensors/profiles/LogFileConfig.h"
#include "sensors/profiles/TalosConfig.h"
#include "sensors/profiles/VelmarAvionicsTarnlinkConfig.h"
#include "sensors/simulators/FlightGearSensorFactory.h"
#include "sensors/simulators/XPlaneSensorFactory.h"
#include "sensors/udp/UDPForwarderFactory.h"
#include "sensors/udp/UDPSensorFactory.h"

namespace skyvane {

void registerSensorFactories(Context& context, SensorManager& sensors) {
    ISensorDialogs* dialogs = context.getSensorDialogs();
    const std::string logFolder = context.getPath("Logs/");
    addStandardDataFactories(sensors);
    sensors.addSensorFactory(nullptr); // FlightStateIMUFactory
    sensors.addSensorFactory(std::make_unique<LogFileSensorFactory>(&sensors, dialogs, logFolder));
    sensors.addSensorFactory(std::make_unique<UDPSensorFactory>(&sensors, dialogs));
    sensors.addSensorFactory(nullptr); // FlyBoxSensorFactory
    sensors.addSensorFactory(std::make_unique<FlightGearSensorFactory>(&sensors));
    sensors.addSensorFactory(std::make_unique<XPlaneSensorFactory>(&sensors));
    sensors.addSensorFactory(std::make_unique<GDL90SensorFactory>(
        &sensors, dialogs, [&context](GDL90Sensor& sensor) { GDL90CalibrationWindow(context, sensor).run(); }));
    sensors.addSensorForwarderFactory(std::make_unique<LogFileForwarderFactory>(&sensors, dialogs, logFolder));
    sensors.addSensorForwarderFactory(
        std::make_unique<UDPForwarderFactory>(&sensors, dialogs, context.getWifiControl()));
}

void registerSensorProfiles(Context& context, SensorManager& sensors) {
    // No driver fills the device's own sensors on this platform.
    const DeviceSensors device;
    const auto parts = [&](const char* icon) {
        irr::video::IVideoDriver* driver = context.getIrrlichtDevice()->getVideoDriver();
        return ProfileParts{&sensors, context.getSensorDialogs(), device,
                            driver->getTexture(context.getPath(icon).c_str())};
    };
    const auto add = [&sensors](std::unique_ptr<IConfigOverride> profile) {
        sensors.addSensorConfigOverride(std::move(profile));
    };
    add(std::make_unique<InternalSensorConfig>(parts("media/tabletIcon.png")));
    add(std::make_unique<InternalGNSSConfig>(parts("media/gnssIcon.png")));
    add(std::make_unique<VelmarAvionicsTarnlinkConfig>(parts("media/tarnlinkIcon.png")));
    add(std::make_unique<ExtGPSConfig>(parts("media/extIcon.png")));
    add(std::make_unique<TalosConfig>(parts("media/talosIcon.png")));
    add(std::make_unique<GDL90Config>(parts("media/gdl90Icon.png")));
    add(std::make_unique<GLD90WeatherTraffic>(parts("media/combinationIcon.png")));
    add(std::make_unique<LogFileConfig>(parts("media/file.png")));
    add(std::make_unique<FlightSimulatorConfig>(parts("media/gamepadIcon.png")));
    add(std::make_unique<CustomConfig>(context.getSensorDialogs()));
}

void registerPanelFactories(Context& context, PanelManager& panels) {
    panels.addPanelFactory(std::make_unique<AttitudeIndicatorFactory>(&context));
    panels.addPanelFactory(std::make_unique<TurnRateIndicatorFactory>(&context));
    panels.addPanelFactory(std::make_unique<Map2DFactory>(&context));
    panels.addPanelFactory(std::make_unique<Map3DFactory>(&context));
    panels.addPanelFactory(std::make_unique<AltimeterFactory>(&context));
    panels.addPanelFactory(std::make_unique<CompassFactory>(&context));
    panels.addPanelFactory(std::make_unique<OneSegmentPanelFactory>(&context));
    panels.addPanelFactory(std::make_unique<WarningLampFactory>(&context));
    panels.addPanelFactory(std::make_unique<VerticalSpeedIndicatorFactory>(&context));
    panels.addPanelFactory(std::make_unique<SpeedIndicatorFactory>(&context));
    panels.addPanelFactory(std::make_unique<SlipIndicatorFactory>(&context));
    panels.addPanelFactory(std::make_unique<GMeterFactory>(&context));
    panels.addPanelFactory(std::make_unique<BatteryPanelFactory>(&context));
    panels.addPanelFactory(std::make_unique<CheckListPanelFactory>(&context));
    panels.addPanelFactory(std::make_unique<GliderPanelFactory>(&context));
    panels.addPanelFactory(std::make_unique<DetailsPanelFactory>(&context));
    panels.addPanelFactory(std::make_unique<SideViewPanelFactory>(&context));
    panels.addPanelFactory(std::make_unique<GlideInfoPanelFactory>(&context));
}

void registerProcedureFactories(Context& context, ProcedureManager& procedures) {
    procedures.addProcedureFactory(std::make_unique<DirectSetup>(context));
    procedures.addProcedureFactory(std::make_unique<HoldingSetup>(context));
    procedures.addProcedureFactory(std::make_unique<ApproachSetup>(context));
    procedures.addProcedureFactory(std::make_unique<InterceptSetup>(context));
}

} // namespace skyvane

#include "sensors/simulators/XPlaneSensorFactory.h"

#include "sensors/simulators/XPlaneSensor.h"

namespace skyvane {

XPlaneSensorFactory::XPlaneSensorFactory(SensorManager* sensors)
    : NoSetupGUISensorFactory("XPlane Flight Simulator",
                              {ISensorData::GPS, ISensorData::Attitude, ISensorData::Heading, ISensorData::Acceleration,
                               ISensorData::Position, ISensorData::Altitude, ISensorData::GroundSpeed,
                               ISensorData::VerticalSpeed, ISensorData::TurnRate, ISensorData::AirSpeed,
                               ISensorData::InsidePressure, ISensorData::OutsidePressure,
                               ISensorData::InsideTemperature, ISensorData::OutsideTemperature, ISensorData::Traffic,
                               ISensorData::Localizer, ISensorData::Glideslope}),
      sensors_(sensors) {}

std::unique_ptr<ISensor> XPlaneSensorFactory::Create() {
    return std::make_unique<XPlaneSensor>(this, sensors_, ISensor::GOOD, Port, BufferBytes);
}

} // namespace skyvane

#include "sensors/simulators/FlightGearSensorFactory.h"

#include "sensors/simulators/FlightGearSensor.h"

namespace skyvane {

FlightGearSensorFactory::FlightGearSensorFactory(SensorManager* sensors)
    : NoSetupGUISensorFactory("FlightGear Flight Simulator",
                              {ISensorData::GPS, ISensorData::Attitude, ISensorData::Heading, ISensorData::Acceleration,
                               ISensorData::Position, ISensorData::Altitude, ISensorData::GroundSpeed,
                               ISensorData::VerticalSpeed, ISensorData::TurnRate, ISensorData::AirSpeed,
                               ISensorData::OutsidePressure, ISensorData::OutsideTemperature}),
      sensors_(sensors) {}

std::unique_ptr<ISensor> FlightGearSensorFactory::Create() {
    return std::make_unique<FlightGearSensor>(this, sensors_, Port);
}

} // namespace skyvane

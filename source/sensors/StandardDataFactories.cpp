#include "sensors/StandardDataFactories.h"

#include "sensors/SensorManager.h"
#include "sensors/records/Acceleration_Data.h"
#include "sensors/records/AirSpeed_Data.h"
#include "sensors/records/Altitude_Data.h"
#include "sensors/records/AngleOfAttack_Data.h"
#include "sensors/records/Attitude_Data.h"
#include "sensors/records/ExtendedHeading_Data.h"
#include "sensors/records/GPS_Data.h"
#include "sensors/records/GroundSpeed_Data.h"
#include "sensors/records/Heading_Data.h"
#include "sensors/records/LocGsFactory.h"
#include "sensors/records/Position_Data.h"
#include "sensors/records/PressureFactory.h"
#include "sensors/records/Raw_Data.h"
#include "sensors/records/SensorDataFactory.h"
#include "sensors/records/TemperatureFactory.h"
#include "sensors/records/Traffic_Data.h"
#include "sensors/records/TurnRate_Data.h"
#include "sensors/records/UATUplink_Data.h"
#include "sensors/records/VerticalSpeed_Data.h"

namespace skyvane {
namespace {

template <class Record>
void add(SensorManager& manager, ISensorData::Type type, const char* name) {
    manager.addSensorDataFactory(type, std::make_unique<SensorDataFactory<Record>>(name));
}

} // namespace

void addStandardDataFactories(SensorManager& manager) {
    constexpr bool inside = true;
    constexpr bool localizer = true;
    add<GPS_Data>(manager, ISensorData::GPS, "GPS");
    add<Attitude_Data>(manager, ISensorData::Attitude, "Attitude");
    add<Heading_Data>(manager, ISensorData::Heading, "Heading");
    add<Acceleration_Data>(manager, ISensorData::Acceleration, "Acceleration");
    add<Altitude_Data>(manager, ISensorData::Altitude, "Altitude");
    add<Position_Data>(manager, ISensorData::Position, "Position");
    add<GroundSpeed_Data>(manager, ISensorData::GroundSpeed, "GroundSpeed");
    add<VerticalSpeed_Data>(manager, ISensorData::VerticalSpeed, "VerticalSpeed");
    add<TurnRate_Data>(manager, ISensorData::TurnRate, "TurnRate");
    add<AirSpeed_Data>(manager, ISensorData::AirSpeed, "AirSpeed");
    manager.addSensorDataFactory(ISensorData::InsidePressure, std::make_unique<PressureFactory>(inside));
    manager.addSensorDataFactory(ISensorData::OutsidePressure, std::make_unique<PressureFactory>(!inside));
    manager.addSensorDataFactory(ISensorData::InsideTemperature, std::make_unique<TemperatureFactory>(inside));
    manager.addSensorDataFactory(ISensorData::OutsideTemperature, std::make_unique<TemperatureFactory>(!inside));
    add<Raw_Data>(manager, ISensorData::Raw, "Raw");
    add<Traffic_Data>(manager, ISensorData::Traffic, "Traffic");
    manager.addSensorDataFactory(ISensorData::Localizer, std::make_unique<LocGsFactory>(localizer));
    manager.addSensorDataFactory(ISensorData::Glideslope, std::make_unique<LocGsFactory>(!localizer));
    add<UATUplink_Data>(manager, ISensorData::UATUplink, "UAT Uplink");
    add<AngleOfAttack_Data>(manager, ISensorData::AngleOfAttack, "Angle of Attack");
    add<ExtendedHeading_Data>(manager, ISensorData::ExtendedHeading, "True and Magnetic Heading");
}

} // namespace skyvane

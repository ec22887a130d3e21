#pragma once

#include "sensors/ISensor.h"
#include "sensors/records/Acceleration_Data.h"
#include "sensors/records/AirSpeed_Data.h"
#include "sensors/records/Altitude_Data.h"
#include "sensors/records/AngleOfAttack_Data.h"
#include "sensors/records/Attitude_Data.h"
#include "sensors/records/ExtendedHeading_Data.h"
#include "sensors/records/GPS_Data.h"
#include "sensors/records/GroundSpeed_Data.h"
#include "sensors/records/Heading_Data.h"
#include "sensors/records/Position_Data.h"
#include "sensors/records/Pressure_Data.h"
#include "sensors/records/Temperature_Data.h"
#include "sensors/records/Traffic_Data.h"
#include "sensors/records/TurnRate_Data.h"
#include "sensors/records/UATUplink_Data.h"
#include "sensors/records/VerticalSpeed_Data.h"

#include <array>
#include <vector>

namespace skyvane {

/// The records of a GDL 90 receiver, and of each type whether it was updated and how far to trust it. Everything is
/// WRONG until its own data came.
struct GDL90Records {
    GPS_Data gps;
    Attitude_Data attitude;
    Heading_Data heading;
    Acceleration_Data acceleration{0.0, -9.81, 0.0};
    Position_Data position;
    Altitude_Data altitude;
    GroundSpeed_Data groundSpeed;
    VerticalSpeed_Data verticalSpeed;
    TurnRate_Data turnRate;
    AirSpeed_Data airSpeed;
    Pressure_Data insidePressure{true};
    Pressure_Data outsidePressure{false};
    Temperature_Data outsideTemperature{false};
    Traffic_Data traffic;
    UATUplink_Data uplinks;
    AngleOfAttack_Data angleOfAttack;
    ExtendedHeading_Data extendedHeading;

    GDL90Records() { failAll(); }
    static const std::vector<ISensorData::Type>& types();
    /// Null for a type that isn't held.
    ISensorData* get(ISensorData::Type type);

    /// The record has been written: it is updated, at this level.
    void give(ISensorData::Type type, ISensor::WarningLevel level = ISensor::GOOD);
    /// The level alone: the record stands as it was.
    void setWarning(ISensorData::Type type, ISensor::WarningLevel level) { warnings_[index(type)] = level; }
    /// Neither written nor to be trusted, until it is given.
    void reset(ISensorData::Type type) {
        warnings_[index(type)] = ISensor::WRONG;
        updated_[index(type)] = false;
    }
    void failAll() { warnings_.fill(ISensor::WRONG); }
    void clearUpdated() { updated_.fill(false); }

    bool wasUpdated(ISensorData::Type type) const { return ISensorData::isType(type) && updated_[index(type)]; }
    ISensor::WarningLevel warning(ISensorData::Type type) const {
        return ISensorData::isType(type) ? warnings_[index(type)] : ISensor::WRONG;
    }

private:
    static size_t index(ISensorData::Type type) { return static_cast<size_t>(type); }

    std::array<ISensor::WarningLevel, ISensorData::TypeCount> warnings_;
    std::array<bool, ISensorData::TypeCount> updated_{};
};

} // namespace skyvane

#pragma once

#include "sensors/records/Acceleration_Data.h"
#include "sensors/records/AirSpeed_Data.h"
#include "sensors/records/Altitude_Data.h"
#include "sensors/records/Attitude_Data.h"
#include "sensors/records/GPS_Data.h"
#include "sensors/records/GroundSpeed_Data.h"
#include "sensors/records/Heading_Data.h"
#include "sensors/records/LocGs_Data.h"
#include "sensors/records/Position_Data.h"
#include "sensors/records/Pressure_Data.h"
#include "sensors/records/Temperature_Data.h"
#include "sensors/records/Traffic_Data.h"
#include "sensors/records/TurnRate_Data.h"
#include "sensors/records/VerticalSpeed_Data.h"

#include <vector>

namespace skyvane {

struct FlightState;

/// An instant of a flight as the records that the program's own sensors would offer.
class FlightRecords {
public:
    /// The records of this instant, which hold until the next call: traffic only where there is any, the landing beams
    /// only within reach of them.
    const std::vector<ISensorData*>& take(const FlightState& state);

private:
    void takeMotion(const FlightState& state, unsigned timeMs);
    void takeGps(const FlightState& state, unsigned timeMs);
    void takeTraffic(const FlightState& state);
    void takeBeams(const FlightState& state);

    GPS_Data gps_;
    Attitude_Data attitude_;
    Heading_Data heading_;
    Acceleration_Data acceleration_;
    Position_Data position_;
    Altitude_Data altitude_;
    GroundSpeed_Data groundSpeed_;
    VerticalSpeed_Data verticalSpeed_;
    TurnRate_Data turnRate_;
    AirSpeed_Data airSpeed_;
    Pressure_Data pressure_{false};
    Pressure_Data cabinPressure_{true}; ///< The same: the cabin isn't tight.
    Temperature_Data temperature_{false};
    Traffic_Data traffic_;
    LocGs_Data localizer_{true};
    LocGs_Data glideslope_{false};
    std::vector<ISensorData*> current_;
};

} // namespace skyvane

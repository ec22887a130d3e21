#pragma once

#include "sensors/records/Acceleration_Data.h"
#include "sensors/records/AirSpeed_Data.h"
#include "sensors/records/Altitude_Data.h"
#include "sensors/records/Attitude_Data.h"
#include "sensors/records/GPS_Data.h"
#include "sensors/records/GroundSpeed_Data.h"
#include "sensors/records/Heading_Data.h"
#include "sensors/records/Position_Data.h"
#include "sensors/records/Pressure_Data.h"
#include "sensors/records/Temperature_Data.h"
#include "sensors/records/TurnRate_Data.h"
#include "sensors/records/VerticalSpeed_Data.h"
#include "sensors/simulators/RecordAges.h"
#include "sensors/simulators/SimulatorSamples.h"

namespace skyvane {

struct FlightGearData;

/// The records that FlightGear's stream fills, without a socket.
///
/// A record is left as it was, and doesn't count as renewed, when a value that would go into it isn't finite or is
/// absurd (see Plausible); the other records are still taken. Nothing is allocated.
class FlightGearRecords {
public:
    FlightGearRecords();

    /// The record, null for a type that isn't held.
    ISensorData* get(ISensorData::Type type);
    /// Renews the records. nowMs is of MilliSecs() and stamps them.
    void take(const FlightGearData& data, unsigned nowMs);

    RecordAges& ages() { return ages_; }

private:
    void takeScalars(const FlightGearData& data);
    void takeAcceleration(const FlightGearData& data);
    void takeAttitude(const FlightGearData& data);
    void takeHeading(double headingDegrees);
    void takePosition(const FlightGearData& data);
    void takeGps(const FlightGearData& data);
    void renewed(ISensorData::Type type) { ages_.markRecord(type, nowMs_); }

    Acceleration_Data acceleration_;
    AirSpeed_Data airSpeed_;
    Altitude_Data altitude_;
    Attitude_Data attitude_;
    GPS_Data gps_;
    GroundSpeed_Data groundSpeed_;
    Heading_Data heading_;
    Position_Data position_;
    Pressure_Data pressure_{false};
    Temperature_Data temperature_{false};
    TurnRate_Data turnRate_;
    VerticalSpeed_Data verticalSpeed_;
    RecordAges ages_;
    unsigned nowMs_ = 0; ///< Of the datagram that is taken in.
    double nowSeconds_ =
        0.0; ///< Secs() for the datagrams of one nowMs, so that a flood adds one sample, not thousands.
    SimulatorSamples turnRates_;
    SimulatorSamples headings_; ///< Feeds turnRates_.
};

} // namespace skyvane

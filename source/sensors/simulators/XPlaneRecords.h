#pragma once

#include "sensors/records/ISensorData.h"
#include "sensors/simulators/RecordAges.h"
#include "sensors/simulators/SimulatorSamples.h"
#include "sensors/simulators/XPlaneDatagram.h"
#include "sensors/simulators/XPlaneTraffic.h"

#include <array>
#include <memory>
#include <vector>

namespace skyvane {

class GPS_Data;
class SensorManager;

/// The records that X-Plane's data output fills, without a socket.
///
/// A record is left as it was, and doesn't count as renewed, when a value that would go into it isn't finite or is
/// absurd (see Plausible); the other records of its group and datagram are still taken. Records that the manager can't
/// make stay null. From the second datagram on nothing is allocated while the number of aircraft stays.
class XPlaneRecords {
public:
    XPlaneRecords(SensorManager* sensors, const std::vector<ISensorData::Type>& types);

    /// The record, null for a type that isn't held.
    ISensorData* get(ISensorData::Type type) const;
    /// Takes a datagram in; false when its length is wrong. nowMs is of MilliSecs() and stamps the records.
    bool take(const void* bytes, size_t length, unsigned nowMs);

    RecordAges& ages() { return ages_; }

private:
    using Group = XPlaneDatagram::Group;
    using Values = std::array<float, 8>;

    template <class T>
    T* record(ISensorData::Type type) const;
    void presetGps();
    void takeGroup(const Group& group);
    void takeTime(const Values& values);
    void takeSpeeds(const Values& values);
    void takeAir(const Values& values);
    void takeYawRate(const Values& values);
    void takeAttitude(const Values& values);
    void takeSlip(const Values& values);
    void takePosition(const Values& values);
    void takeClimb(const Values& values);
    void takeTraffic(const Group& group);
    void takeDeviation(ISensorData::Type type, double dots);
    void setValue(ISensorData::Type type, double value);
    void renewed(ISensorData::Type type) { ages_.markRecord(type, nowMs_); }

    std::array<std::unique_ptr<ISensorData>, ISensorData::TypeCount> records_;
    RecordAges ages_;
    unsigned nowMs_ = 0; ///< Of the datagram that is taken in.
    double nowSeconds_ =
        0.0; ///< Secs() for the datagrams of one nowMs, so that a flood adds one sample, not thousands.
    SimulatorSamples turnRates_;
    XPlaneTraffic traffic_;
};

} // namespace skyvane

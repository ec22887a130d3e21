#pragma once

#include "sensors/SampleList.h"

#include <string>

namespace skyvane {

class ISensorHost;

/// Reads the device's battery once a second and warns when external power goes or the charge runs low.
///
/// A file that can't be read leaves its value as it was. Main thread only.
class BatteryMonitor {
public:
    enum State { Unknown = 0, Discharging = 1, ChargingOrFull = 2 };

    BatteryMonitor();
    BatteryMonitor(const BatteryMonitor&) = delete;
    BatteryMonitor& operator=(const BatteryMonitor&) = delete;

    /// Where "capacity" and "status" lie.
    void setFolder(const std::string& folder);
    /// Once a frame; `now` in seconds. Messages go to the host.
    void update(double now, ISensorHost& host);

    int state() const { return state_; }
    /// 0.0 to 1.0.
    double fill() const { return fill_; }
    /// Change of the fill per second, smoothed; false before there were two measurements.
    bool chargeSpeed(double& fillPerSecond);
    /// Seconds on the clock of update.
    double lastMeasurementTime() const { return lastMeasurementTime_; }

private:
    void readFill();
    void readState();
    void measure(double now);
    void tellPower(State before, ISensorHost& host);
    void tellLowFill(State stateBefore, double fillBefore, bool fillKnownBefore, ISensorHost& host);

    std::string capacityPath_;
    std::string statusPath_;
    State state_ = Unknown;
    double fill_ = 0.0;
    bool fillKnown_ = false;
    double lastReadTime_;
    int measurementCount_ = 0;
    double lastMeasuredFill_ = 0.0;
    double lastMeasurementTime_ = 0.0;
    SampleList<double, double> fillRates_;
    SampleList<double, double> fills_;
    /// Their addresses own the two messages.
    char powerLostOwner_ = 0;
    char lowBatteryOwner_ = 0;
};

} // namespace skyvane

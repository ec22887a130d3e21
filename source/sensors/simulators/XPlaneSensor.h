#pragma once

#include "sensors/ISensor.h"
#include "sensors/simulators/SimulatorLink.h"
#include "sensors/simulators/XPlaneRecords.h"

namespace skyvane {

class SensorManager;
class XPlaneSensorFactory;

/// Flies the program on the data output of X-Plane, for training and demonstration. Main thread only.
///
/// A record is WRONG until a datagram has filled it, and again when more than 999 ms have passed since the last one
/// that did. A taken port is logged, and the sensor then stays WRONG. XPlaneRecords tells what becomes of bad values.
class XPlaneSensor : public ISensor {
public:
    /// Factory and manager outlive the sensor. The level is that of fresh data. Port 0 takes a free one.
    XPlaneSensor(XPlaneSensorFactory* factory, SensorManager* sensors, WarningLevel level, int port, int bufferSize);

    std::string getName() override;
    /// Reads what waits, 1000 datagrams at most. At the first call the user is told that nothing shown is real.
    bool Update() override;
    bool lastTimeUpdated(ISensorData::Type type) override;
    ISensorData* getData(ISensorData::Type type) override;
    bool isDataTypeSupported(ISensorData::Type type) override;
    std::vector<ISensorData::Type> getSupportedDataTypes() override;
    WarningLevel getWarning(ISensorData::Type type) override;
    std::string getSensorDetails() override;

    /// Takes a datagram in as Update does with those from the network; false when its length is wrong. nowMs is of
    /// MilliSecs().
    bool OnDatagram(const void* bytes, size_t length, unsigned nowMs);
    /// -1 when the port couldn't be had.
    int getBoundPort() const { return link_.getBoundPort(); }

private:
    XPlaneSensorFactory* factory_;
    SensorManager* sensors_;
    WarningLevel level_;
    SimulatorLink link_;
    XPlaneRecords records_;
    bool noticeShown_ = false;
};

} // namespace skyvane

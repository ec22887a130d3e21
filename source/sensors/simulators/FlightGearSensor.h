#pragma once

#include "sensors/ISensor.h"
#include "sensors/simulators/FlightGearData.h"
#include "sensors/simulators/FlightGearRecords.h"
#include "sensors/simulators/FlightGearSocket.h"

namespace skyvane {

class FlightGearSensorFactory;
class SensorManager;

/// Flies the program on FlightGear's generic protocol, for training and demonstration. Main thread only.
///
/// A record is WRONG until a datagram has filled it, and again when more than 999 ms have passed since the last one
/// that did. A taken port is logged, and the sensor then stays WRONG. FlightGearRecords tells what becomes of bad
/// values. FlightGear may stop and start, or another one take over, at any time.
class FlightGearSensor : public ISensor {
public:
    /// Factory and manager outlive the sensor. Port 0 takes a free one.
    FlightGearSensor(FlightGearSensorFactory* factory, SensorManager* sensors, int port);

    std::string getName() override;
    /// Reads what waits, 1000 datagrams at most. At the first call the user is told that nothing shown is real.
    bool Update() override;
    bool lastTimeUpdated(ISensorData::Type type) override;
    ISensorData* getData(ISensorData::Type type) override;
    bool isDataTypeSupported(ISensorData::Type type) override;
    std::vector<ISensorData::Type> getSupportedDataTypes() override;
    WarningLevel getWarning(ISensorData::Type type) override;
    std::string getSensorDetails() override;

    /// True when at most 999 ms have passed since the last datagram.
    bool isConnected();
    /// Takes a datagram in as Update does with those from the network; false when its length is wrong. nowMs is of
    /// MilliSecs().
    bool OnDatagram(const void* bytes, size_t length, unsigned nowMs);
    /// -1 when the port couldn't be had.
    int getBoundPort() const { return socket_.getBoundPort(); }

private:
    FlightGearSensorFactory* factory_;
    SensorManager* sensors_;
    FlightGearSocket socket_;
    FlightGearData data_;
    FlightGearRecords records_;
    bool noticeShown_ = false;
};

} // namespace skyvane

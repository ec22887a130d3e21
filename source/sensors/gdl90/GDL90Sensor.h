#pragma once

#include "sensors/ISensor.h"
#include "sensors/gdl90/GDL90Merge.h"
#include "sensors/gdl90/GDL90MessageStore.h"
#include "sensors/gdl90/GDL90Parser.h"
#include "sensors/gdl90/GDL90Traffic.h"
#include "sensors/transport/CuncurrentUDPSocket.h"

#include <memory>
#include <vector>

namespace skyvane {

class GDL90SensorFactory;
class SensorManager;

/// Flies the program on a box that sends GDL 90 frames over UDP: an ADS-B receiver with traffic and weather uplinks,
/// and whatever its maker adds of attitude, air data and angle of attack.
///
/// Everything is WRONG until the first datagram and again after one second of silence; a record alone, until its own
/// data came and when that is two seconds old. Traffic goes target by target, 20 seconds after its last report. The
/// sockets receive on threads of their own; all else happens on the main thread.
class GDL90Sensor : public ISensor {
public:
    static constexpr int SecondPort = 5001; ///< Of Talos devices.

    /// Factory and manager outlive the sensor. Port 0 takes a free one. A taken port is logged, and the sensor then
    /// stays WRONG.
    GDL90Sensor(GDL90SensorFactory* factory, SensorManager* sensors, int port, GDL90Flavor flavor);
    ~GDL90Sensor() override;

    std::string getName() override;
    std::string getSensorDetails() override;
    /// Reads what waits, one queue of a megabyte at most from each socket, so that a flood never holds the frame.
    bool Update() override;
    bool lastTimeUpdated(ISensorData::Type type) override { return records_.wasUpdated(type); }
    ISensorData* getData(ISensorData::Type type) override { return records_.get(type); }
    bool isDataTypeSupported(ISensorData::Type type) override;
    std::vector<ISensorData::Type> getSupportedDataTypes() override { return GDL90Records::types(); }
    WarningLevel getWarning(ISensorData::Type type) override;
    /// Lets the pilot level the attitude and choose what the altitude means.
    bool OnCalibrate() override;

    /// A flavour whose device is calibrated by its maker's own program.
    bool isCalibratedElsewhere() const { return flavor_ == GDL90Flavor::Talos; }
    const GDL90Calibration& getCalibration() const { return merge_.calibration; }
    void setCalibration(const GDL90Calibration& calibration) { merge_.calibration = calibration; }

    bool isConnected() const { return isConnected_; }
    /// -1 when the port couldn't be had.
    int getBoundPort() const;
    /// Takes one datagram in as Update does those of a socket, and makes the records of it.
    void OnDatagram(const uint8_t* bytes, size_t length);

private:
    /// A frame that a datagram leaves open goes on in the next one of the same port.
    struct Link {
        explicit Link(int port);
        CuncurrentUDPSocket socket;
        GDL90Parser parser;
    };

    bool receive(Link& link, double now);
    void take(GDL90Parser& parser, const uint8_t* bytes, size_t length, double now);
    std::unique_ptr<IGDL90Message> processReceivedGDL90Message(std::unique_ptr<IGDL90Message> message, double now);
    void connect(double now);
    void loseSilentDevice(double now);

    GDL90SensorFactory* factory_;
    SensorManager* sensors_;
    GDL90Flavor flavor_;
    std::vector<std::unique_ptr<Link>> links_;
    bool isConnected_ = false;
    double lastDatagram_;
    GDL90Records records_;
    GDL90MessageStore messages_;
    GDL90Traffic traffic_;
    GDL90Merge merge_;
    std::string deviceName_; ///< Empty until the device told it.
};

} // namespace skyvane

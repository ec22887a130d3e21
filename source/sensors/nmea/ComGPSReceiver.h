#pragma once

#include "sensors/ISensor.h"
#include "sensors/SampleList.h"
#include "sensors/nmea/NMEA_Parser.h"
#include "sensors/records/Altitude_Data.h"
#include "sensors/records/GroundSpeed_Data.h"
#include "sensors/records/Heading_Data.h"
#include "sensors/records/Position_Data.h"
#include "sensors/records/TurnRate_Data.h"
#include "sensors/records/VerticalSpeed_Data.h"
#include "sensors/transport/RS232Socket.h"

#include <optional>
#include <string>
#include <vector>

namespace skyvane {

/// A receiver on a serial port as a sensor: its position, altitude, speed and track, the track as heading, and what
/// follows from them, vertical speed and turn rate. All records carry the UTC time of day.
///
/// A port that can't be opened, or that has been silent for the time-out, is opened again, at most once a second: a
/// receiver that is pulled out and put back is read again. Meanwhile everything is WRONG. Main thread only.
class ComGPSReceiver : public ISensor {
public:
    /// The device is a path. blur and minimalDelta, in seconds, are those of the lists that rates are taken from.
    ComGPSReceiver(std::string device, int bufferSize, unsigned timeoutMs, unsigned baudRate, double blur,
                   double minimalDelta);

    std::string getName() override;
    bool Update() override;
    bool lastTimeUpdated(ISensorData::Type) override { return updated_; }
    ISensorData* getData(ISensorData::Type type) override;
    bool isDataTypeSupported(ISensorData::Type type) override;
    std::vector<ISensorData::Type> getSupportedDataTypes() override;
    WarningLevel getWarning(ISensorData::Type type) override;

private:
    /// Values over time, and how fast they change. It begins with its first sample.
    class Rate {
    public:
        Rate(double blur, double minimalDelta, bool isAngle)
            : blur_(blur), minimalDelta_(minimalDelta), isAngle_(isAngle) {}
        void add(double value, double seconds);
        /// Per second.
        double get() { return rates_ ? rates_->calcLastValueBlured() : 0.0; }

    private:
        double blur_;
        double minimalDelta_;
        bool isAngle_;
        std::optional<SampleList<double, double>> rates_;
        std::optional<SampleList<double, double>> values_;
    };

    void connectWhenDue(unsigned nowMs);
    void publish();

    std::string device_;
    unsigned timeoutMs_;
    unsigned baudRate_;
    RS232Socket socket_;
    std::vector<char> buffer_;
    NMEA_Parser parser_;
    GPS_Data gps_;
    Altitude_Data altitude_;
    Heading_Data heading_;
    Position_Data position_;
    GroundSpeed_Data groundSpeed_;
    TurnRate_Data turnRate_;
    VerticalSpeed_Data verticalSpeed_;
    Rate altitudes_;
    Rate tracks_;
    unsigned lastSentenceMs_ = 0;
    unsigned lastBytesMs_ = 0;
    unsigned lastTryMs_ = 0;
    bool hasTried_ = false;
    bool connected_ = false;
    bool updated_ = false;
};

} // namespace skyvane

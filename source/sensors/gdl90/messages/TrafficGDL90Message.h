#pragma once

#include "sensors/gdl90/messages/IGDL90Message.h"

#include <cstdint>
#include <optional>

namespace skyvane {

/// Another aircraft, or for the subclass one's own.
class TrafficGDL90Message : public IGDL90Message {
public:
    /// What the track is.
    enum TrackKind { NoTrack = 0, TrueTrack = 1, MagneticHeading = 2, TrueHeading = 3 };

    void readFromRaw(const MessageBytes& raw) override;
    Type getType() const override { return TRAFFIC; }
    std::string print() const override;

    bool trafficAlertStatus = false;
    int addressType = 1; ///< 0 to 6
    uint32_t address = 0;
    double latitude = 0.0; ///< Degrees; beyond 90 only from a faulty sender.
    double longitude = 0.0;
    std::optional<double> pressureAltitude; ///< Metres, against 1013.25 mbar.
    int miscId = 0;                         ///< What track is: a TrackKind.
    bool isExtrapolated = false;
    bool isAirborne = true;
    int navigationIntegrityCategory = 0;
    int navigationAccuracyCategoryPosition = 0;
    std::optional<double> velocity;      ///< Knots over the ground.
    std::optional<double> verticalSpeed; ///< Metres per second.
    double track = 0.0;                  ///< Degrees, 0 up to but not including 360.
    int emitterCategory = 0;
    std::string callSign; ///< At most 8 characters.
    int emergencyPriorityCode = 0;

    bool isPositionAvailable() const;

private:
    void readMotion(const MessageBytes& raw);
};

} // namespace skyvane

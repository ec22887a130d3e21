#pragma once

#include "sensors/gdl90/messages/TalosMessage.h"

namespace skyvane {

/// The satellite receiver of a Talos device.
class TalosGPSMessage : public TalosMessage {
public:
    void readFromRaw(const MessageBytes& raw) override;
    Type getType() const override { return TALOS_GPS; }
    std::string print() const override;

    bool hasFix = false;
    int numberOfSatellites = 0;
    int hour = 0; ///< UTC
    int minute = 0;
    int second = 0;
    int milliseconds = 0;
    bool timeValid = false;
    float latitude = 0.0f; ///< Degrees.
    float longitude = 0.0f;
    float altitude = 0.0f;    ///< Metres.
    float groundspeed = 0.0f; ///< Metres per second.
    float groundtrack = 0.0f; ///< Degrees.
};

} // namespace skyvane

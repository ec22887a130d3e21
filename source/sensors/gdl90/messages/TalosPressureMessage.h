#pragma once

#include "sensors/gdl90/messages/TalosMessage.h"

namespace skyvane {

/// Air data of a Talos device: pressures in millibars, airspeed in metres per second.
class TalosPressureMessage : public TalosMessage {
public:
    void readFromRaw(const MessageBytes& raw) override;
    Type getType() const override { return TALOS_PRESSURE; }
    std::string print() const override;

    float staticPressure = 0.0f;
    float pitotPressure = 0.0f;
    float airspeed = 0.0f;
};

} // namespace skyvane

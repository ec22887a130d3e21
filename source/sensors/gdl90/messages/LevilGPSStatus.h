#pragma once

#include "sensors/gdl90/messages/IGDL90Message.h"

namespace skyvane {

/// The satellite receiver and the power of a Levil box.
class LevilGPSStatus : public IGDL90Message {
public:
    void readFromRaw(const MessageBytes& raw) override;
    Type getType() const override { return LEVIL_GPS_STATUS; }
    std::string print() const override;

    bool sbasValid = false;
    int numSats = 0;
    double power = 0.0;
    int outputRate = 0;
};

} // namespace skyvane

#pragma once

#include "sensors/gdl90/messages/IGDL90Message.h"

namespace skyvane {

/// What a Stratux box can tell at present.
class StratuxHeartbeatMessage : public IGDL90Message {
public:
    void readFromRaw(const MessageBytes& raw) override;
    Type getType() const override { return STRATUX_HEARBEAT; }
    std::string print() const override;

    bool isGPSValid = false;
    bool isAHRSValid = false;
    int protocolVersion = 0;
};

} // namespace skyvane

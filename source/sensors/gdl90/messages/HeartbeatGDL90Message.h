#pragma once

#include "sensors/gdl90/messages/IGDL90Message.h"

namespace skyvane {

/// The receiver is alive, once a second.
class HeartbeatGDL90Message : public IGDL90Message {
public:
    void readFromRaw(const MessageBytes& raw) override;
    Type getType() const override { return HEARTBEAT; }
    std::string print() const override;

    int status1 = 0;
    int status2 = 0;
    int secondsSinceMidnight = 0; ///< UTC
    int messageCount = 0;         ///< Of what it received in the last second.
};

} // namespace skyvane

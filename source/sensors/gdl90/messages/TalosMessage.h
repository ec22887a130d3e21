#pragma once

#include "sensors/gdl90/messages/IGDL90Message.h"

#include <cstdint>

namespace skyvane {

/// What the messages of Talos devices have in common. Their numbers are little-endian.
class TalosMessage : public IGDL90Message {
public:
    /// The sender says so, and every value lies in its range: no NaN or infinity among those that have one.
    bool valid = false;
    uint64_t timeStamp = 0;

protected:
    /// Sets both; the ranges are the message's own.
    void readHead(const MessageBytes& raw);
    void limit(float value, float above, float below) { valid = valid && value > above && value < below; }
};

} // namespace skyvane

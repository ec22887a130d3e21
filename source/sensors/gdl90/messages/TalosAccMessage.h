#pragma once

#include "sensors/gdl90/messages/TalosMessage.h"

namespace skyvane {

/// The accelerations along the device's axes.
class TalosAccMessage : public TalosMessage {
public:
    void readFromRaw(const MessageBytes& raw) override;
    Type getType() const override { return TALOS_ACC; }
    std::string print() const override;

    float accX = 0.0f; ///< Metres per second squared.
    float accY = 0.0f; ///< Metres per second squared.
    float accZ = 0.0f; ///< Metres per second squared.
};

} // namespace skyvane

#pragma once

#include "sensors/gdl90/messages/TalosMessage.h"

namespace skyvane {

/// The turn rates about the device's axes.
class TalosGyroMessage : public TalosMessage {
public:
    void readFromRaw(const MessageBytes& raw) override;
    Type getType() const override { return TALOS_GYRO; }
    std::string print() const override;

    float gyroX = 0.0f; ///< Radians per second.
    float gyroY = 0.0f; ///< Radians per second.
    float gyroZ = 0.0f; ///< Radians per second.
};

} // namespace skyvane

#pragma once

#include "sensors/gdl90/messages/TalosMessage.h"

namespace skyvane {

/// The temperature outside, by a Talos device.
class TalosTemperatureMessage : public TalosMessage {
public:
    void readFromRaw(const MessageBytes& raw) override;
    Type getType() const override { return TALOS_TEMPERATURE; }
    std::string print() const override;

    float temperature = 0.0f; ///< Degrees Celsius.
};

} // namespace skyvane

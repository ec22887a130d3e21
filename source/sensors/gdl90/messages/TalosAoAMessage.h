#pragma once

#include "sensors/gdl90/messages/TalosMessage.h"

namespace skyvane {

/// The angle of attack, and the largest ones without and with flaps.
class TalosAoAMessage : public TalosMessage {
public:
    void readFromRaw(const MessageBytes& raw) override;
    Type getType() const override { return TALOS_AOA; }
    std::string print() const override;

    float AoA = 0.0f;      ///< Degrees.
    float cleanAoA = 0.0f; ///< Degrees.
    float dirtyAoA = 0.0f; ///< Degrees.
};

} // namespace skyvane

#pragma once

#include "sensors/gdl90/messages/IGDL90Message.h"

#include <optional>

namespace skyvane {

/// Angle of attack, temperature and more of a Levil box.
class LevilAoAMessage : public IGDL90Message {
public:
    void readFromRaw(const MessageBytes& raw) override;
    Type getType() const override { return LEVIL_AOA; }
    std::string print() const override;

    std::optional<double> AoA;                ///< Parts of the scale, 0 to 2.54.
    std::optional<double> outsideTemperature; ///< Degrees Fahrenheit.
    int speedOffset = 0;
    int altitudeOffset = 0;
    int turbineSpeed = 0;
};

} // namespace skyvane

#pragma once

#include "sensors/gdl90/messages/IGDL90Message.h"

#include <optional>

namespace skyvane {

/// Attitude and air data of Stratux and Levil boxes.
class StratuxAHRSMessage : public IGDL90Message {
public:
    void readFromRaw(const MessageBytes& raw) override;
    Type getType() const override { return STRATUX_AHRS; }
    std::string print() const override;

    std::optional<double> roll;              ///< Degrees, right wing down positive.
    std::optional<double> pitch;             ///< Degrees, nose up positive.
    std::optional<double> heading;           ///< Degrees.
    std::optional<double> slipSkid;          ///< Metres per second squared.
    std::optional<double> yawRate;           ///< Degrees per second.
    std::optional<double> gLoad;             ///< Metres per second squared: 9.81 in level flight.
    std::optional<double> indicatedAirspeed; ///< Knots.
    std::optional<double> pressureAltitude;  ///< Metres, against 1013.25 mbar.
    std::optional<double> verticalSpeed;     ///< Metres per second.
};

} // namespace skyvane

#pragma once

#include "sensors/gdl90/messages/IGDL90Message.h"

#include <optional>

namespace skyvane {

/// Attitude and airspeed in the extension of an electronic flight bag.
class FFAHRSMessage : public IGDL90Message {
public:
    void readFromRaw(const MessageBytes& raw) override;
    Type getType() const override { return FFAHRS; }
    std::string print() const override;

    std::optional<double> roll;              ///< Degrees, right wing down positive.
    std::optional<double> pitch;             ///< Degrees, nose up positive.
    std::optional<double> heading;           ///< Degrees.
    bool isTrueHeading = false;              ///< Otherwise it is magnetic.
    std::optional<double> indicatedAirspeed; ///< Knots, as the true one.
    std::optional<double> trueAirspeed;

private:
    void readHeading(const MessageBytes& raw);
};

} // namespace skyvane

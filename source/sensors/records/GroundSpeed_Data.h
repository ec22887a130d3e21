#pragma once

#include "sensors/records/ScalarData.h"

namespace skyvane {

/// The speed over ground, in knots.
class GroundSpeed_Data : public ScalarData {
public:
    GroundSpeed_Data() : ScalarData(0.0, 0) {}
    GroundSpeed_Data(double speedKnots, unsigned initialTimeStamp) : ScalarData(speedKnots, initialTimeStamp) {}

    Type getType() override { return GroundSpeed; }

protected:
    const char* label() const override { return "Ground speed"; }
    const char* unit() const override { return "knots"; }
};

} // namespace skyvane

#pragma once

#include "sensors/records/ScalarData.h"

namespace skyvane {

/// The air speed, in knots.
class AirSpeed_Data : public ScalarData {
public:
    AirSpeed_Data() : ScalarData(0.0, 0) {}
    AirSpeed_Data(double speedKnots, unsigned initialTimeStamp) : ScalarData(speedKnots, initialTimeStamp) {}

    Type getType() override { return AirSpeed; }

protected:
    const char* label() const override { return "Air speed"; }
    const char* unit() const override { return "knots"; }
};

} // namespace skyvane

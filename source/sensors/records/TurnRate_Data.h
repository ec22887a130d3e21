#pragma once

#include "sensors/records/ScalarData.h"

namespace skyvane {

/// The turn rate, in degrees per second, positive to the right.
class TurnRate_Data : public ScalarData {
public:
    TurnRate_Data() : ScalarData(0.0, 0) {}
    TurnRate_Data(double degreesPerSecond, unsigned initialTimeStamp)
        : ScalarData(degreesPerSecond, initialTimeStamp) {}

    Type getType() override { return TurnRate; }

protected:
    const char* label() const override { return "Turn rate"; }
    const char* unit() const override { return "degrees/s"; }
};

} // namespace skyvane

#pragma once

#include "sensors/records/ScalarData.h"

namespace skyvane {

/// The vertical speed, in metres per second, positive when climbing.
class VerticalSpeed_Data : public ScalarData {
public:
    VerticalSpeed_Data() : ScalarData(0.0, 0) {}
    VerticalSpeed_Data(double climbMetresPerSecond, unsigned initialTimeStamp)
        : ScalarData(climbMetresPerSecond, initialTimeStamp) {}

    Type getType() override { return VerticalSpeed; }

protected:
    const char* label() const override { return "Vertical speed"; }
    const char* unit() const override { return "m/s"; }
};

} // namespace skyvane

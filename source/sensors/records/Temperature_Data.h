#pragma once

#include "sensors/records/ScalarData.h"

namespace skyvane {

/// The temperature, in degrees Celsius.
///
/// Where it was measured decides the type and is no part of the byte form. -300.0 means that there is none.
class Temperature_Data : public ScalarData {
public:
    explicit Temperature_Data(bool isInside = true) : Temperature_Data(-300.0, isInside, 0) {}
    Temperature_Data(double celsius, bool isInside, unsigned initialTimeStamp)
        : ScalarData(celsius, initialTimeStamp), inside(isInside) {}

    Type getType() override { return inside ? InsideTemperature : OutsideTemperature; }

    bool inside;

protected:
    const char* label() const override { return inside ? "Inside temperature" : "Outside temperature"; }
    const char* unit() const override { return "degrees C"; }
};

} // namespace skyvane

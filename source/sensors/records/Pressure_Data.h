#pragma once

#include "sensors/records/ScalarData.h"

namespace skyvane {

/// The static pressure, in millibars. Readers ignore values below 100.
///
/// Where it was measured decides the type and is no part of the byte form. -300.0 means that there is none.
class Pressure_Data : public ScalarData {
public:
    explicit Pressure_Data(bool isInside = true) : Pressure_Data(-300.0, isInside, 0) {}
    Pressure_Data(double millibars, bool isInside, unsigned initialTimeStamp)
        : ScalarData(millibars, initialTimeStamp), inside(isInside) {}

    Type getType() override { return inside ? InsidePressure : OutsidePressure; }

    bool inside;

protected:
    const char* label() const override { return inside ? "Inside pressure" : "Outside pressure"; }
    const char* unit() const override { return "mbar"; }
};

} // namespace skyvane

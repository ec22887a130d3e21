#pragma once

#include "sensors/records/ScalarData.h"

namespace skyvane {

/// The altitude above mean sea level, in metres.
class Altitude_Data : public ScalarData {
public:
    Altitude_Data() : ScalarData(400.0, 0) {}
    Altitude_Data(double altitudeMetres, unsigned initialTimeStamp) : ScalarData(altitudeMetres, initialTimeStamp) {}

    Type getType() override { return Altitude; }

protected:
    const char* label() const override { return "Altitude"; }
    const char* unit() const override { return "m"; }
};

} // namespace skyvane

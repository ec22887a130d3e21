#pragma once

#include "sensors/records/ScalarData.h"

namespace skyvane {

/// The aircraft's heading, in degrees.
class Heading_Data : public ScalarData {
public:
    Heading_Data() : ScalarData(0.0, 0) {}
    Heading_Data(double headingDegrees, unsigned initialTimeStamp) : ScalarData(headingDegrees, initialTimeStamp) {}

    Type getType() override { return Heading; }

protected:
    const char* label() const override { return "Heading"; }
    const char* unit() const override { return "degrees"; }
};

} // namespace skyvane

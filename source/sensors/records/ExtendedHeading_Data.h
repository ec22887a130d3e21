#pragma once

#include "sensors/records/FixedFormData.h"

#include <limits>

namespace skyvane {

/// True and magnetic heading, in degrees. A NaN means not available.
/// Byte form, 12 bytes: true heading at 0, magnetic heading at 4, time stamp at 8.
class ExtendedHeading_Data : public FixedFormData<12> {
public:
    ExtendedHeading_Data() = default;
    ExtendedHeading_Data(float trueDegrees, float magneticDegrees, unsigned initialTimeStamp)
        : trueHeading(trueDegrees), magneticHeading(magneticDegrees), timeStamp(initialTimeStamp) {}

    Type getType() override { return ExtendedHeading; }
    void Print() override;

    float trueHeading = std::numeric_limits<float>::quiet_NaN();
    float magneticHeading = std::numeric_limits<float>::quiet_NaN();
    unsigned timeStamp = 0;

protected:
    void writeForm(ByteWriter& out) const override;
    void readForm(ByteReader& in) override;
};

} // namespace skyvane

#pragma once

#include "sensors/records/FixedFormData.h"

namespace skyvane {

/// What an accelerometer fixed to the aircraft feels, in metres per second squared: x right, y up, z forward.
/// Byte form, 28 bytes: x at 0, y at 8, z at 16, time stamp at 24.
class Acceleration_Data : public FixedFormData<28> {
public:
    Acceleration_Data() = default;
    Acceleration_Data(double right, double up, double forward, unsigned initialTimeStamp = 0)
        : x(right), y(up), z(forward), timeStamp(initialTimeStamp) {}

    Type getType() override { return Acceleration; }
    void Print() override;

    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
    unsigned timeStamp = 0;

protected:
    void writeForm(ByteWriter& out) const override;
    void readForm(ByteReader& in) override;
};

} // namespace skyvane

#pragma once

#include "sensors/records/FixedFormData.h"

namespace skyvane {

/// The apparent gravity in the aircraft's frame, in metres per second squared: x right, y up, z forward. Level flight
/// gives (0, -9.81, 0); in a slip x points to the side where the ball lies.
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

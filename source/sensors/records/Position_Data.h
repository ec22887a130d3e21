#pragma once

#include "sensors/records/FixedFormData.h"

namespace skyvane {

/// Where the aircraft is. Byte form, 20 bytes: longitude at 0, latitude at 8, time stamp at 16.
class Position_Data : public FixedFormData<20> {
public:
    Position_Data() = default;
    Position_Data(double longitudeDegrees, double latitudeDegrees, unsigned initialTimeStamp)
        : longitude(longitudeDegrees), latitude(latitudeDegrees), timeStamp(initialTimeStamp) {}

    Type getType() override { return Position; }
    void Print() override;

    /// Degrees, east and north positive.
    double longitude = -10.0;
    double latitude = -10.0;
    unsigned timeStamp = 0;

protected:
    void writeForm(ByteWriter& out) const override;
    void readForm(ByteReader& in) override;
};

} // namespace skyvane

#pragma once

#include "attitude/math/Matrix3x3.h"
#include "sensors/records/GPS_Data.h"
#include "sensors/records/SerialBuffer.h"

#include <string>

namespace skyvane {

/// One sample of a device's raw input: what the attitude estimator takes, and the main content of a flight log.
///
/// Byte form, 244 bytes and the two variable parts: length of the GPS form, GPS form, length of the text, text, the
/// nine components of acc, gyr and mag, four flags, m, delta, deltaT0, deltaT1. A form whose lengths don't fit is
/// refused as a whole.
class Raw_Data : public ISensorData {
public:
    using Vector = irr::core::vector3d<double>;

    Type getType() override { return Raw; }
    void* serialize(int* length) override;
    void deserialize(void* bytes, int length) override;
    void Print() override;

    GPS_Data gps;
    /// The receiver's sentences of this sample, as they came.
    std::string text;
    Vector acc;
    Vector gyr;
    Vector mag;
    bool accAvail = false;
    bool gyrAvail = false;
    bool magAvail = false;
    bool gpsAvail = false;
    Matrix3x3 m;
    Matrix3x3 delta;
    double deltaT0 = 0.0;
    double deltaT1 = 0.0;

private:
    SerialBuffer form_;
};

} // namespace skyvane

#pragma once

namespace skyvane {

/// A vector in north, east, down.
struct NedVector {
    double north = 0.0;
    double east = 0.0;
    double down = 0.0;
};
double dot(const NedVector& a, const NedVector& b);

/// The three body axes (forward, right, down through the floor) seen in north, east, down.
struct BodyFrame {
    NedVector forward;
    NedVector right;
    NedVector down;
};
/// Angles in radians, applied heading first, then pitch, then roll.
BodyFrame bodyFrame(double roll, double pitch, double heading);

/// Turn rates about the body axes from the rates of the three angles, all in radians.
struct BodyRates {
    double roll;
    double pitch;
    double yaw;
};
BodyRates bodyRates(double roll, double pitch, double rollRate, double pitchRate, double headingRate);

} // namespace skyvane

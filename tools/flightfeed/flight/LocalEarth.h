#pragma once

namespace skyvane {

/// Metres per degree on the WGS 84 ellipsoid at a latitude and an altitude above it.
struct LocalEarth {
    double metresPerDegreeNorth;
    double metresPerDegreeEast;
};
LocalEarth localEarth(double latitudeDegrees, double altitudeMetres);

/// A place, and what lies between two of them on a plane laid at their middle latitude: good to a metre in 10 km.
struct GroundPoint {
    double latitudeDegrees = 0.0;
    double longitudeDegrees = 0.0;
};
struct GroundOffset {
    double northMetres;
    double eastMetres;
};
GroundOffset offsetBetween(const GroundPoint& from, const GroundPoint& to);

/// Moves a point by a small step.
void moveBy(GroundPoint& point, double altitudeMetres, double northMetres, double eastMetres);

} // namespace skyvane

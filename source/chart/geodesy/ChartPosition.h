#pragma once

namespace skyvane {

/// A place on the earth: degrees, east and north positive, longitude first.
struct ChartPosition {
    double longitude = 0.0;
    double latitude = 0.0;

    ChartPosition() = default;
    ChartPosition(double longitudeDegrees, double latitudeDegrees)
        : longitude(longitudeDegrees), latitude(latitudeDegrees) {}
};

} // namespace skyvane

#pragma once

#include "chart/geodesy/ChartPosition.h"

namespace skyvane {

/// The last two positions of a target, from longitudes and latitudes that come one by one.
///
/// A ring of two pairs: a new coordinate completes the current pair, or begins the other one when it is complete.
class XPlanePositionStack {
public:
    /// Degrees. A coordinate that the current pair holds already changes nothing.
    void OnNewLongitude(double longitude);
    void OnNewLatitude(double latitude);
    /// True bearing in degrees from the older to the newer position; false until both are complete.
    bool calculateHeading(double& degrees) const;

private:
    static constexpr double NotSet = 999.0;

    static bool isComplete(const ChartPosition& pair);
    void set(double ChartPosition::*coordinate, double value);

    ChartPosition pairs_[2] = {{NotSet, NotSet}, {NotSet, NotSet}};
    int current_ = 0;
};

} // namespace skyvane

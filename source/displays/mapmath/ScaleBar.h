#pragma once

#include <string>

namespace skyvane {

constexpr double scaleUnits[] = {0.1, 0.2, 0.5, 1, 2, 5, 10, 20, 50, 100, 200, 500, 1000};

/// The length of a map's scale, in nautical miles or kilometres, and its bar in pixels.
struct ScaleBar {
    double value = 0.1;
    double pixels = 0.0;
    std::string text; ///< "0.5 NM", "20 km".
};

/// The value of scaleUnits nearest to what a bar of that many pixels would mean; 0.1 below them.
ScaleBar chooseScaleBar(double wantedPixels, double metresPerPixel, bool metric);

/// "12.3 NM" or " KM", for a distance in metres.
std::string distanceText(double metres, bool metric);

} // namespace skyvane

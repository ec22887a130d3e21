#include "displays/mapmath/ScaleBar.h"

#include "chart/geodesy/EarthConstants.h"
#include "core/text/Numbers.h"

#include <cmath>

namespace skyvane {
namespace {

double unitOf(bool metric) {
    return metric ? 1000.0 : MetresPerNauticalMile;
}

} // namespace

ScaleBar chooseScaleBar(double wantedPixels, double metresPerPixel, bool metric) {
    const double wanted = wantedPixels * metresPerPixel / unitOf(metric);
    ScaleBar bar;
    for (const double value : scaleUnits)
        if (std::fabs(value - wanted) < std::fabs(bar.value - wanted))
            bar.value = value;
    bar.pixels = metresPerPixel > 0.0 ? bar.value * unitOf(metric) / metresPerPixel : 0.0;
    bar.text = toFixedText(bar.value, bar.value <= 1.0 ? 1 : 0) + (metric ? " km" : " NM");
    return bar;
}

std::string distanceText(double metres, bool metric) {
    if (!std::isfinite(metres))
        return "---";
    return toFixedText(metres / unitOf(metric), 1) + (metric ? " KM" : " NM");
}

} // namespace skyvane

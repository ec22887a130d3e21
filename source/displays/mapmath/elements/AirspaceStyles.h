#pragma once

#include <cstdint>
#include <string>

namespace skyvane {

class AirspaceElement;

/// How the airspaces of a class look on maps.
struct AirspaceStyle {
    const char* airspaceClass;
    uint32_t argb;
    float widthFactor; ///< Of the outline, times the usual width.
    float bandFactor;  ///< Of the band inside of it.
    int priority;      ///< The order of drawing: what stops a pilot lies over what informs him.
};

/// White at the usual widths for a class without a look of its own.
const AirspaceStyle& airspaceStyle(const std::string& airspaceClass);

/// Of the same hue, opaque, and dark enough for white letters.
uint32_t darkened(uint32_t argb);

/// Which of several airspaces under a finger is meant: small ones before large ones, high floors last.
/// `areaSquareMetres` as of AirspaceElement::getBounds().
int airspaceSelectPriority(const std::string& airspaceClass, double areaSquareMetres, int floorFeet);

/// "SFC - 4500", "1000 AGL - UNL": the limits for a label, in feet, or in metres when `metric`.
std::string airspaceLimits(const AirspaceElement& airspace, bool metric);

} // namespace skyvane

#include "terrain/mesh/TerrainColor.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

struct Color {
    double red, green, blue;
};

constexpr Color Water = {0.0, 80.0, 145.0};
constexpr Color Lowland = {79.0, 133.0, 54.0};
constexpr Color Upland = {111.0, 75.0, 0.0};
constexpr Color Summit = {200.0, 200.0, 200.0};

constexpr double NearMetres = 30.0;
constexpr double FarMetres = 183.0;

Color blend(const Color& from, const Color& to, double share) {
    return {from.red + (to.red - from.red) * share, from.green + (to.green - from.green) * share,
            from.blue + (to.blue - from.blue) * share};
}

/// How far up between the overview's lowest and highest ground a place is.
double relativeHeight(double height, double minHeight, double maxHeight) {
    const double range = maxHeight - minHeight;
    const double t = std::fabs(range) < 305.0
                         ? std::fabs((height - (minHeight - range)) / (maxHeight - (minHeight - range)))
                         : std::fabs(height) / maxHeight;
    return std::isfinite(t) ? t : 0.0;
}

/// Where upland and summits begin depends on the range of heights.
Color groundColor(double t, double range) {
    const double p = std::clamp((range - 400.0) / 100.0, 0.0, 1.0), q = 1.0 - p;
    const double upland = 0.4 * p + q, summit = 0.8 * p + 2.0 * q;
    if (t < upland)
        return blend(Lowland, Upland, t / upland);
    return blend(Upland, Summit, std::min((t - upland) / (summit - upland), 1.0));
}

/// The warning colour of a clearance, already with its share of three quarters; false without one.
bool warningColor(double clearance, bool hazard, TerrainShading shading, Color& color) {
    if (hazard) {
        if (!(clearance <= FarMetres))
            return false;
        const double e = std::max((clearance - NearMetres) / (FarMetres - NearMetres), 0.0);
        color = {191.25, e * 255.0 * 0.75, 0.0};
        return true;
    }
    if (shading == TerrainShading::Shader || !(std::fabs(clearance) <= FarMetres))
        return false;
    const double e = std::max((std::fabs(clearance) - NearMetres) / (FarMetres - NearMetres), 0.0);
    color = {((1.0 - e) * 166.0 + e * 204.0) * 0.75, e * 204.0 * 0.75, 0.0};
    return true;
}

uint32_t toByte(double channel) {
    return static_cast<uint32_t>(std::clamp(channel + 0.5, 0.0, 255.0));
}

} // namespace

uint32_t calcTerrainColor(float own, float height, float minHeight, float maxHeight, bool hazard, bool overlay,
                          TerrainShading shading) {
    const double metres = static_cast<double>(height), highest = static_cast<double>(maxHeight);
    const double t = relativeHeight(metres, static_cast<double>(minHeight), highest);
    const bool isWater = std::fabs(metres) < 0.0001;
    double brightness = highest > 150.0 ? t * 0.8 + 0.2 : t * 0.5 + 0.5;
    if (isWater)
        brightness = 1.0;
    Color color = isWater ? Water : groundColor(t, highest - static_cast<double>(minHeight));

    const double clearance = static_cast<double>(own) - metres;
    Color warning;
    if (warningColor(clearance, hazard, shading, warning)) {
        color = {color.red * 0.25 + warning.red, color.green * 0.25 + warning.green, color.blue * 0.25 + warning.blue};
        brightness = brightness * 0.5 + 0.5;
    }
    uint32_t alpha = 255;
    if (hazard && overlay)
        alpha = clearance > FarMetres ? (isWater ? 128 : 0) : 192;
    return alpha << 24 | toByte(color.red * brightness) << 16 | toByte(color.green * brightness) << 8 |
           toByte(color.blue * brightness);
}

} // namespace skyvane

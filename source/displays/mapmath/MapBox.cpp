#include "displays/mapmath/MapBox.h"

#include "chart/geodesy/Angles.h"
#include "chart/geodesy/EarthConstants.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

using Point = irr::core::vector2d<double>;

constexpr double fullTurn = 360.0;
constexpr double farAway = 1e6;

int limitedPixel(double value) {
    return std::isfinite(value) ? static_cast<int>(std::lround(std::clamp(value, -farAway, farAway)))
                                : static_cast<int>(-farAway);
}

Point turned(const Point& vector, double radians) {
    const double c = std::cos(radians), s = std::sin(radians);
    return Point(vector.X * c + vector.Y * s, vector.Y * c - vector.X * s);
}

} // namespace

ChartPosition MapBox::getNW() const {
    return getWidth() >= fullTurn ? ChartPosition(0.0, north) : ChartPosition(Angle0to360(west), north);
}

ChartPosition MapBox::getSE() const {
    return getWidth() >= fullTurn ? ChartPosition(fullTurn, south) : ChartPosition(Angle0to360(east), south);
}

bool MapBox::contains(const ChartPosition& position) const {
    if (!(position.latitude >= south && position.latitude <= north))
        return false;
    return std::fabs(Angle180(position.longitude - getCentre().longitude)) <= 0.5 * getWidth();
}

bool MapBox::covers(const MapBox& other) const {
    if (!(other.north <= north && other.south >= south && other.getWidth() <= getWidth()))
        return false;
    const double apart = std::fabs(Angle180(other.getCentre().longitude - getCentre().longitude));
    return getWidth() >= fullTurn || apart + 0.5 * other.getWidth() <= 0.5 * getWidth();
}

FlatProjection::FlatProjection(const MapBox& box, double widthPixels, double heightPixels)
    : centre_(box.getCentre()),
      perPixel_(box.getWidth() / std::max(widthPixels, 1.0), box.getHeight() / std::max(heightPixels, 1.0)),
      size_(widthPixels, heightPixels) {}

Point FlatProjection::toPixels(const ChartPosition& position) const {
    return Point(0.5 * size_.X + Angle180(position.longitude - centre_.longitude) / perPixel_.X,
                 0.5 * size_.Y - (position.latitude - centre_.latitude) / perPixel_.Y);
}

ChartPosition FlatProjection::toChart(const Point& pixel) const {
    const double longitude = centre_.longitude + (pixel.X - 0.5 * size_.X) * perPixel_.X;
    const double latitude = centre_.latitude - (pixel.Y - 0.5 * size_.Y) * perPixel_.Y;
    return ChartPosition(Angle180(longitude), std::clamp(latitude, -90.0, 90.0));
}

Point turnToTop(const Point& vector, double headingDegrees) {
    return turned(vector, headingDegrees / DegreesPerRadian);
}

Point turnFromTop(const Point& vector, double headingDegrees) {
    return turned(vector, -headingDegrees / DegreesPerRadian);
}

irr::core::vector2d<int> toPixel(const Point& point) {
    return {limitedPixel(point.X), limitedPixel(point.Y)};
}

} // namespace skyvane

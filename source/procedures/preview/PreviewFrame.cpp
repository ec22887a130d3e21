#include "procedures/preview/PreviewFrame.h"

#include "chart/geodesy/LocalFrame.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

using Point = PreviewFrame::Point;
using Offset = irr::core::vector2d<double>;

constexpr double leastExtentMetres = 400.0;
constexpr double farthestPixels = 30000.0; // products of two still fit whole numbers

/// Pixels from the picture's middle, right and down.
Offset offsetOf(const PreviewFrame& frame, const ChartPosition& position) {
    const auto local = ChartPosition2Vector3df64(frame.getCentre(), position, 0.0);
    Offset offset(frame.getPixelsPerMetre() * local.X, -frame.getPixelsPerMetre() * local.Z);
    const double largest = std::max(std::fabs(offset.X), std::fabs(offset.Y));
    if (largest > farthestPixels)
        offset *= farthestPixels / largest;
    return offset;
}

Point at(const PreviewFrame& frame, const Offset& offset) {
    const Point middle = frame.getPicture().getCenter();
    return {middle.X + static_cast<int>(std::lround(offset.X)), middle.Y + static_cast<int>(std::lround(offset.Y))};
}

} // namespace

PreviewFrame PreviewFrame::fit(const std::vector<ChartPosition>& places, const Rect& picture, double share) {
    const ChartPosition& origin = places.front();
    double west = 0.0, east = 0.0, south = 0.0, north = 0.0;
    for (const ChartPosition& place : places) {
        const auto local = ChartPosition2Vector3df64(origin, place, 0.0);
        west = std::min(west, local.X);
        east = std::max(east, local.X);
        south = std::min(south, local.Z);
        north = std::max(north, local.Z);
    }
    const ChartPosition centre = Vector3df642ChartPosition(origin, {(west + east) / 2.0, 0.0, (south + north) / 2.0});
    const double wide = std::max(east - west, leastExtentMetres), high = std::max(north - south, leastExtentMetres);
    return {centre, share * std::min(picture.getWidth() / wide, picture.getHeight() / high), picture};
}

Point PreviewFrame::toPixels(const ChartPosition& position) const {
    return at(*this, offsetOf(*this, position));
}

AircraftMark placeAircraft(const PreviewFrame& frame, const ChartPosition& aircraft, int side) {
    Offset offset = offsetOf(frame, aircraft);
    const double halfWidth = frame.getPicture().getWidth() / 2.0, halfHeight = frame.getPicture().getHeight() / 2.0;
    if (std::fabs(offset.X) <= halfWidth && std::fabs(offset.Y) <= halfHeight)
        return {at(frame, offset), false};
    const double inset = side * std::sqrt(0.5) + 1.0;
    const double room = std::max(0.0, std::min((halfWidth - inset) / std::max(std::fabs(offset.X), 1e-9),
                                               (halfHeight - inset) / std::max(std::fabs(offset.Y), 1e-9)));
    return {at(frame, offset * room), true};
}

} // namespace skyvane

#include "displays/mapmath/TileGrid.h"

#include "chart/geodesy/Angles.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

constexpr double latitudeLimit = 89.0;
constexpr int smallestEdge = 256;

int nearestPowerOfTwo(double size) {
    int power = 1;
    while (1.5 * power < size && power < (1 << 20))
        power *= 2;
    return power;
}

int powerOfTwoBelow(int size) {
    int power = 1;
    while (2 * power <= size)
        power *= 2;
    return power;
}

} // namespace

TileShape chooseTileShape(int panelWidth, int panelHeight, int screenWidth, int screenHeight, int largestEdge) {
    const double width = std::max(panelWidth, 1), height = std::max(panelHeight, 1);
    const double diagonal = std::hypot(width, height);
    const int larger = nearestPowerOfTwo(2.0 * std::max(screenWidth, screenHeight));
    const int half = nearestPowerOfTwo(diagonal) / 2;
    TileShape shape;
    shape.edge =
        std::clamp(std::max(2 * half, larger), smallestEdge, std::max(smallestEdge, powerOfTwoBelow(largestEdge)));
    const double turning = std::ceil((height / 4.0 + diagonal) / shape.edge);
    const auto count = [&](double size) {
        return static_cast<int>(std::max({std::round(2.0 * size / shape.edge), turning, 1.0}));
    };
    shape.columns = count(width);
    shape.rows = count(height);
    return shape;
}

TileGrid::TileGrid(const MapView& view, const TileShape& shape)
    : shape_(shape), longitudePerPixel_(view.getLongitudePerPixel()), latitudePerPixel_(view.getLatitudePerPixel()),
      metresPerPixel_(view.getMetresPerPixel()) {
    const double width = shape.columns * shape.edge * longitudePerPixel_;
    const double height = shape.rows * shape.edge * latitudePerPixel_;
    const ChartPosition middle = view.getBox().getCentre();
    const double limit = std::max(0.0, latitudeLimit - 0.5 * height);
    const double latitude = std::clamp(middle.latitude, -limit, limit);
    box_ = {middle.longitude - 0.5 * width, latitude - 0.5 * height, middle.longitude + 0.5 * width,
            latitude + 0.5 * height};
}

MapBox TileGrid::getTileBox(int tile, double marginPixels) const {
    const int column = shape_.columns > 0 ? tile % shape_.columns : 0;
    const int row = shape_.columns > 0 ? tile / shape_.columns : 0;
    const double edge = shape_.edge;
    MapBox box;
    box.west = box_.west + (column * edge - marginPixels) * longitudePerPixel_;
    box.east = box_.west + ((column + 1) * edge + marginPixels) * longitudePerPixel_;
    box.north = box_.north - (row * edge - marginPixels) * latitudePerPixel_;
    box.south = box_.north - ((row + 1) * edge + marginPixels) * latitudePerPixel_;
    if (marginPixels > 0.0) {
        box.north = std::min(box.north, latitudeLimit);
        box.south = std::max(box.south, -latitudeLimit);
    }
    return box;
}

TileGrid::Point TileGrid::getScale(const MapView& view) const {
    return Point(longitudePerPixel_ / view.getLongitudePerPixel(), latitudePerPixel_ / view.getLatitudePerPixel());
}

TileGrid::Point TileGrid::getCorner(const MapView& view) const {
    const MapView::Panel& panel = view.getPanel();
    const ChartPosition own = box_.getCentre(), seen = view.getBox().getCentre();
    return Point(0.5 * panel.width +
                     (Angle180(own.longitude - seen.longitude) - 0.5 * box_.getWidth()) / view.getLongitudePerPixel(),
                 0.5 * panel.height -
                     (own.latitude - seen.latitude + 0.5 * box_.getHeight()) / view.getLatitudePerPixel());
}

bool TileGrid::covers(const MapView& view) const {
    if (shape_.getCount() == 0)
        return false;
    const Point from = getCorner(view), scale = getScale(view);
    const Point to(from.X + shape_.columns * shape_.edge * scale.X, from.Y + shape_.rows * shape_.edge * scale.Y);
    const MapView::Panel& panel = view.getPanel();
    const Point middle(0.5 * panel.width, 0.5 * panel.height);
    for (const Point& corner :
         {Point(0.0, 0.0), Point(panel.width, 0.0), Point(0.0, panel.height), Point(panel.width, panel.height)}) {
        const Point offset = corner - view.getPivot();
        const Point flat =
            middle + (view.getMode() == MapMode::TrackUp ? turnFromTop(offset, view.getHeading()) : offset);
        constexpr double rounding = 1e-6;
        if (flat.X < from.X - rounding || flat.Y < from.Y - rounding || flat.X > to.X + rounding ||
            flat.Y > to.Y + rounding)
            return false;
    }
    return true;
}

} // namespace skyvane

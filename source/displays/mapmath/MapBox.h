#pragma once

#include "chart/geodesy/ChartPosition.h"
#include "core/geometry/EngineMath.h"

namespace skyvane {

/// A rectangle of the earth in degrees that goes east from its west edge: `east` is above `west` and may be above 180.
struct MapBox {
    double west = 0.0;
    double south = 0.0;
    double east = 0.0;
    double north = 0.0;

    double getWidth() const { return east - west; }
    double getHeight() const { return north - south; }
    ChartPosition getCentre() const { return ChartPosition(0.5 * (west + east), 0.5 * (south + north)); }
    /// Corners as the chart's queries take them, longitudes 0 to 360; the whole way round for boxes as wide as that.
    ChartPosition getNW() const;
    ChartPosition getSE() const;
    /// Edges count as inside; so does each longitude that is a whole turn away.
    bool contains(const ChartPosition& position) const;
    /// Whether all of the other lies in this one.
    bool covers(const MapBox& other) const;
};

/// The linear picture of a box in a rectangle of pixels, x to the east, y to the south. A position takes the shorter
/// way from the middle of the box, so that it works across the antimeridian.
class FlatProjection {
public:
    using Point = irr::core::vector2d<double>;

    FlatProjection() = default;
    FlatProjection(const MapBox& box, double widthPixels, double heightPixels);

    Point toPixels(const ChartPosition& position) const;
    /// Longitudes -180 to 180, latitudes cut at the poles.
    ChartPosition toChart(const Point& pixel) const;
    const Point& getSize() const { return size_; }
    /// Degrees.
    double getLongitudePerPixel() const { return perPixel_.X; }
    double getLatitudePerPixel() const { return perPixel_.Y; }

private:
    ChartPosition centre_;
    Point perPixel_{1.0, 1.0};
    Point size_{0.0, 0.0};
};

/// Turns a vector of the screen (y down) so that what lay towards a heading points up.
irr::core::vector2d<double> turnToTop(const irr::core::vector2d<double>& vector, double headingDegrees);
/// The way back.
irr::core::vector2d<double> turnFromTop(const irr::core::vector2d<double>& vector, double headingDegrees);

/// Whole pixels that can be computed with, whatever the point: at most a million away, and that for what is no number.
irr::core::vector2d<int> toPixel(const irr::core::vector2d<double>& point);

} // namespace skyvane

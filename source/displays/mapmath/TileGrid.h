#pragma once

#include "displays/mapmath/MapBox.h"
#include "displays/mapmath/MapView.h"

namespace skyvane {

/// How large the render targets of a map are and how many of them lie around its panel, in columns and rows.
struct TileShape {
    int edge = 0; ///< Pixels.
    int columns = 0;
    int rows = 0;

    int getCount() const { return columns * rows; }
    bool operator==(const TileShape& other) const {
        return edge == other.edge && columns == other.columns && rows == other.rows;
    }
};

/// Large enough that the view can turn, and fly some way, before a new set is needed. The largest edge is the driver's,
/// at least 256.
TileShape chooseTileShape(int panelWidth, int panelHeight, int screenWidth, int screenHeight, int largestEdge);

/// A set of tiles that lies on the earth: north up, with degrees a pixel that don't change any more.
class TileGrid {
public:
    using Point = irr::core::vector2d<double>;

    TileGrid() = default;
    /// Centred on what the view shows; moved inwards at 89 degrees of latitude.
    TileGrid(const MapView& view, const TileShape& shape);

    const TileShape& getShape() const { return shape_; }
    const MapBox& getBox() const { return box_; }
    /// Tiles count in rows from the north-west. With a margin in pixels, limited to 89 degrees of latitude.
    MapBox getTileBox(int tile, double marginPixels) const;
    double getMetresPerPixel() const { return metresPerPixel_; }
    /// Where the grid's upper left corner lies in the unturned view, in its pixels, and how many of those one of the
    /// grid's is.
    Point getCorner(const MapView& view) const;
    Point getScale(const MapView& view) const;
    /// Whether it covers the panel as the view lies and turns now.
    bool covers(const MapView& view) const;

private:
    TileShape shape_;
    MapBox box_;
    double longitudePerPixel_ = 1.0;
    double latitudePerPixel_ = 1.0;
    double metresPerPixel_ = 0.0;
};

} // namespace skyvane

#pragma once

#include "displays/mapmath/elements/MapAffine.h"
#include "displays/shapes/PolygonSweep.h"

namespace skyvane {

/// The inside of one polygon of a chart, cut into trapezoids once and drawn in any view: degrees east and north of the
/// first vertex, without the detail that a scale can't show.
class GroundFill {
public:
    /// Vertices closer than `detailDegrees` to each other may become one.
    GroundFill(const std::vector<ChartPosition>& vertices, double detailDegrees);

    /// See PolygonSweep.
    bool advance(uint64_t work) { return sweep_.advance(work); }
    bool isDone() const { return sweep_.isDone(); }
    size_t getSize() const { return sweep_.getTrapezoids().size(); }
    /// Appends what can be seen. Nothing until it is done, and nothing of a polygon too tangled for it.
    void addTo(ShapeMesh& mesh, const MapAffine& affine, uint32_t argb, const ShapeRect& view) const;

    /// Whether it was made from these vertices: their number, and some of them.
    bool isOf(const std::vector<ChartPosition>& vertices) const;

private:
    ChartPosition first_;
    uint64_t fingerprint_;
    PolygonSweep sweep_;
};

/// The steps of detail that fills are made in, each half as fine as the one before: what a view of that many degrees a
/// pixel needs, and how many degrees that is.
int groundDetailStep(double degreesPerPixel);
double groundDetailDegrees(int step);

} // namespace skyvane

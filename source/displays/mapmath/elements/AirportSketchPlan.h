#pragma once

#include "chart/elements/AirportSketch.h"
#include "displays/mapmath/elements/AirportGround.h"
#include "displays/shapes/ShapeMesh.h"

#include <functional>
#include <string>

namespace skyvane {

/// A text of a sketch: its middle in pixels, and how far it is turned counter-clockwise.
struct SketchText {
    std::string text;
    ShapePoint middle;
    double height = 0.0; ///< Of a line, in pixels.
    double turnDegrees = 0.0;
    uint32_t argb = 0xffffffff;
};

/// What a sketch is made of, in pixels from its upper left corner: the texts lie over the shapes.
struct SketchPlan {
    ShapeMesh shapes;
    std::vector<SketchText> texts;
    double pixelsPerMetre = 0.0;
};

struct SketchFrame {
    irr::core::dimension2d<int> size;
    bool metric = false;
    /// The width of a text whose lines are of that height.
    std::function<double(const std::string&, double)> widthOf;
};

/// From an airport's local frame, metres east and north of its reference point, to pixels of its sketch.
struct SketchScale {
    ShapePoint centre; ///< Metres, in the middle of the picture.
    ShapePoint middle; ///< Pixels.
    double factor = 1.0;

    ShapePoint operator()(const ShapePoint& metres) const {
        return middle + ShapePoint(metres.X - centre.X, centre.Y - metres.Y) * factor;
    }
};
/// That of planAirportSketch: all runways with room for their idents. The frame's texts don't count.
SketchScale fitAirportSketch(const AirportSketch& sketch, const SketchFrame& frame);

constexpr uint32_t SketchGrass = 0xff3f5d43;
/// The ground of sketches and what frames it.
void addSketchGround(SketchPlan& plan, const SketchFrame& frame);
/// The height of a line of text in a sketch of that size.
double sketchTextHeight(const SketchFrame& frame);

/// The runways to scale, north up, with idents at their ends and lengths along them, over what is known of the ground
/// around; a north arrow, and a scale where there is room. Readable from 150 x 100 pixels on. An airport without
/// runways shows a helipad's H, or a ring.
SketchPlan planAirportSketch(const AirportElement& airport, const AirportGround& ground, const SketchFrame& frame);

} // namespace skyvane

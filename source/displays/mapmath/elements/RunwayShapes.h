#pragma once

#include "chart/elements/AirportSketch.h"
#include "displays/shapes/Strokes.h"

#include <string>

namespace skyvane {

class AirportElement;
struct Runway;

/// How runways of a surface (Runway::Surface) are drawn.
struct RunwayLook {
    uint32_t fill;
    uint32_t edge;
    uint32_t marks;  ///< Centre line and thresholds; 0 where nobody paints any.
    uint32_t symbol; ///< Of the airport's symbol on maps.
    const char* name;
};
const RunwayLook& runwayLook(uint32_t surface);

/// The longest runway, which gives an airport's symbol its direction and colour; null without runways.
const Runway* mainRunway(const AirportElement& airport);

/// Appends a runway between two ends in pixels: its surface, its edges and, where there is room, its markings. A runway
/// narrower than `leastWidth` is drawn that wide.
void addRunway(ShapeMesh& mesh, const ShapePoint& first, const ShapePoint& second, double width, double leastWidth,
               const RunwayLook& look, const ShapeRect& view);

/// "1270 m", "4167 ft"; empty when the length is unknown. The unit may be left out.
std::string runwayLengthText(const Runway& runway, bool metric, bool withWidth);

} // namespace skyvane

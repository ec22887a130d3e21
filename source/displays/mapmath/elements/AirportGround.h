#pragma once

#include "displays/shapes/Strokes.h"

#include <cstdint>

namespace skyvane {

class AirportElement;
class IChartElementSource;

/// What lies on the ground around an airport: taxiways, aprons, buildings, in the airport's local frame as of
/// AirportSketch: x metres east, y metres north.
struct AirportGround {
    struct Feature {
        uint8_t feature; ///< As of GroundGeometryElement.
        bool isPolygon;
        double widthMetres; ///< Of a line; 0 for none.
        ShapePath points;
    };
    std::vector<Feature> features; ///< In the order of drawing.
};

/// From the charts, within the airport's extent and somewhat around. At most a thousand features. The airport is not
/// one of the chart's own elements: those hold until the next call only.
AirportGround findAirportGround(IChartElementSource& charts, const AirportElement& airport);

} // namespace skyvane

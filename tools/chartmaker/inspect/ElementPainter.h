#pragma once

#include "chart/elements/IChartElement.h"
#include "chartmaker/inspect/MapPicture.h"

#include <memory>
#include <vector>

namespace skyvane {

class AirportElement;
class AirspaceElement;
class GroundGeometryElement;

/// Draws elements into a picture, from the ground up: areas, lines, airspaces, airways, points, and then their labels,
/// the more important ones first.
class ElementPainter {
public:
    using Elements = std::vector<std::unique_ptr<IChartElement>>;

    /// A picture's background: the sea's when the set has a coastline that closes, else the land's.
    static uint32_t chooseBackground(const Elements& elements);

    explicit ElementPainter(MapPicture& picture) : picture_(picture) {}

    void paint(const Elements& elements);

private:
    void paintGround(const GroundGeometryElement& ground);
    void paintAirspace(const AirspaceElement& airspace);
    void paintAirport(const AirportElement& airport);
    void paintElement(const IChartElement& element);
    void labelElement(const IChartElement& element);
    void labelGround(const GroundGeometryElement& ground);

    MapPicture& picture_;
};

} // namespace skyvane

#include "chart/elements/AirportSketch.h"

#include "chart/elements/AirportElement.h"
#include "chart/elements/RunwayEnds.h"
#include "chart/geodesy/EarthConstants.h"
#include "chart/geodesy/LocalFrame.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

namespace {

constexpr double guessedWidthMetres = 30.0;
constexpr double leastHalfExtentMetres = 100.0;
constexpr double usedShareOfPicture = 0.9;

std::array<AirportSketch::Point, 4> cornersOf(const std::array<AirportSketch::Point, 2>& ends, double widthMetres) {
    AirportSketch::Point right(ends[1].Y - ends[0].Y, ends[0].X - ends[1].X);
    right.normalize();
    right *= widthMetres / 2.0;
    return {ends[0] - right, ends[0] + right, ends[1] + right, ends[1] - right};
}

AirportSketch::Strip stripOf(const AirportElement& airport, const Runway& runway) {
    std::array<irr::core::vector3d<double>, 2> places;
    bool known = true;
    bool anyKnown = false;
    for (size_t end = 0; end < places.size(); ++end) {
        ChartPosition position;
        const bool isKnown = selectThreshholdPosition(&airport, &runway, end == 0, position);
        known = known && isKnown;
        anyKnown = anyKnown || isKnown;
        places[end] = ChartPosition2Vector3df64(airport.position, position, 0.0);
    }
    if (!anyKnown)
        correctThreshholdPosition(&runway, places[0], places[1]);
    const double width = runway.widthFeet < 1 ? guessedWidthMetres : runway.widthFeet * MetresPerFoot;
    const std::array<AirportSketch::Point, 2> ends{AirportSketch::Point(places[0].X, places[0].Z),
                                                   AirportSketch::Point(places[1].X, places[1].Z)};
    return {ends, cornersOf(ends, width), runway.surface, known};
}

} // namespace

AirportSketch::AirportSketch(const AirportElement& airport)
    : halfExtent_(leastHalfExtentMetres, leastHalfExtentMetres) {
    strips_.reserve(airport.runways.size());
    for (const Runway& runway : airport.runways) {
        strips_.push_back(stripOf(airport, runway));
        for (const Point& corner : strips_.back().corners) {
            halfExtent_.X = std::max(halfExtent_.X, std::fabs(corner.X));
            halfExtent_.Y = std::max(halfExtent_.Y, std::fabs(corner.Y));
        }
    }
}

double AirportSketch::getPositionFactor(const irr::core::dimension2d<uint32_t>& picture) const {
    return usedShareOfPicture * std::min(picture.Width / halfExtent_.X, picture.Height / halfExtent_.Y) / 2.0;
}

} // namespace skyvane

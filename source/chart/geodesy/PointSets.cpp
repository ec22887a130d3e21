#include "chart/geodesy/PointSets.h"

#include "chart/geodesy/GreatCircle.h"
#include "chart/geodesy/LocalFrame.h"

#include <cmath>

namespace skyvane {

bool calculateBoundingBox(ChartPosition& nw, ChartPosition& se, double& area,
                          const std::vector<ChartPosition>& points) {
    if (points.empty())
        return false;
    const ChartPosition& origin = points.front();
    nw = se = origin;
    double west = 0.0, east = 0.0, south = 0.0, north = 0.0;
    for (size_t i = 1; i < points.size(); ++i) {
        const auto place = ChartPosition2Vector3df64(origin, points[i], 0.0);
        if (place.X < west) {
            west = place.X;
            nw.longitude = points[i].longitude;
        }
        if (place.X > east) {
            east = place.X;
            se.longitude = points[i].longitude;
        }
        if (place.Z > north) {
            north = place.Z;
            nw.latitude = points[i].latitude;
        }
        if (place.Z < south) {
            south = place.Z;
            se.latitude = points[i].latitude;
        }
    }
    area = std::fabs(north - south) * std::fabs(east - west);
    return points.size() > 1;
}

double calcPolyLineLength(const std::list<ChartPosition>& line) {
    double length = 0.0;
    const ChartPosition* last = nullptr;
    for (const ChartPosition& point : line) {
        if (last)
            length += calcDistance2(*last, point);
        last = &point;
    }
    return length;
}

double calcPolyLineArea(const std::list<ChartPosition>& polygon) {
    if (polygon.empty())
        return 0.0;
    const ChartPosition& origin = polygon.front();
    auto last = ChartPosition2Vector3df64(origin, polygon.back(), 0.0);
    double sum = 0.0;
    for (const ChartPosition& point : polygon) {
        const auto place = ChartPosition2Vector3df64(origin, point, 0.0);
        sum += (last.X + place.X) * (last.Z - place.Z);
        last = place;
    }
    return 0.5 * std::fabs(sum);
}

} // namespace skyvane

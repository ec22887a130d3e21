#include "displays/informationmath/SideStops.h"

#include "displays/gauges/SegmentFormat.h"
#include "procedures/plan/RouteProfile.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace skyvane {

std::vector<SideStop> listSideStops(const RouteProfile& profile, bool metric,
                                    const std::function<ShortText(const ProcedureLocation&)>& nameOf) {
    std::vector<SideStop> stops;
    const size_t points = profile.positions.size();
    for (const RouteProfile::Stop& each : profile.stops) {
        const double share = profile.totalMetres > 0.0 ? each.distanceMetres / profile.totalMetres : 0.0;
        SideStop stop;
        stop.index = points > 1 ? share * static_cast<double>(points - 1) : 0.0;
        stop.altitudeMetres = each.altitudeMetres;
        stop.name = nameOf(each.location);
        stop.altitude = L"Auto";
        if (each.isAltitudeSet)
            stop.altitude = formatAltitude(each.altitudeMetres, metric).append(metric ? L" m" : L" ft");
        stops.push_back(stop);
    }
    return stops;
}

int findSideStop(const std::vector<SideStop>& stops, const SideAxes& axes, const ShapePoint& place,
                 const ShapePoint& size) {
    int found = -1;
    double least = std::numeric_limits<double>::infinity();
    for (size_t i = 0; i < stops.size(); ++i) {
        const ShapePoint offset = axes.toScreen(stops[i].index, stops[i].altitudeMetres) - place;
        const bool isNear = std::fabs(offset.X) <= 0.5 * size.X && std::fabs(offset.Y) <= 0.5 * size.Y;
        if (isNear && offset.getLength() < least) {
            least = offset.getLength();
            found = static_cast<int>(i);
        }
    }
    return found;
}

bool groundAt(const RouteProfile& profile, double index, double& metres) {
    if (profile.heights.empty() || !(index >= 0.0))
        return false;
    const size_t last = profile.heights.size() - 1;
    const size_t below = std::min(static_cast<size_t>(index), last), above = std::min(below + 1, last);
    metres = static_cast<double>(std::max(profile.heights[below], profile.heights[above]));
    return profile.known[below] && profile.known[above];
}

} // namespace skyvane

#include "chart/store/IChartElementSource.h"

#include "chart/areas/AreaQueries.h"
#include "chart/geodesy/Angles.h"
#include "chart/geodesy/EarthConstants.h"
#include "chart/geodesy/EarthRectangles.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

/// Where the western piece of a rectangle across longitude 0 ends.
constexpr double SeamLongitude = 359.999;
/// A western piece that is narrower than this holds nothing.
constexpr double NarrowestPiece = 1e-6;

bool isFinite(const ChartPosition& position) {
    return std::isfinite(position.longitude) && std::isfinite(position.latitude);
}

} // namespace

std::list<int> IChartElementSource::findChartElementsInVicinity(ChartPosition position, double rangeNauticalMiles,
                                                                bool airportsOnly) {
    const double range = rangeNauticalMiles * MetresPerNauticalMile;
    ChartPosition nw, se;
    calcRectangleAround(nw, se, position, 2.0 * range);
    std::list<int> elements;
    for (const int area : getBestFittingAreaList(nw, se, 1.0))
        appendElementsInVicinity(*this, area, position, range, airportsOnly, elements);
    return elements;
}

std::list<int> IChartElementSource::getBestFittingAreaList(ChartPosition nw, ChartPosition se, double factor) {
    if (!isFinite(nw) || !isFinite(se))
        return {};
    if (se.longitude - nw.longitude >= 360.0) {
        nw.longitude = 0.0;
        se.longitude = 360.0;
    }
    nw = ChartPosition(Angle360(nw.longitude), Latitudinize(nw.latitude));
    se = ChartPosition(Angle360(se.longitude), Latitudinize(se.latitude));
    if (nw.longitude > se.longitude) {
        std::list<int> areas;
        // A sliver beyond the seam still is a piece: nothing is missing there.
        if (nw.longitude < 360.0 - NarrowestPiece) {
            const double east = nw.longitude < SeamLongitude ? SeamLongitude : 360.0;
            areas = getBestFittingAreaList(nw, ChartPosition(east, se.latitude), factor);
        }
        if (se.longitude > 0.0)
            areas.splice(areas.end(), getBestFittingAreaList(ChartPosition(0.0, nw.latitude), se, factor));
        return areas;
    }
    if (nw.latitude < se.latitude)
        std::swap(nw.latitude, se.latitude);
    const double target = std::fabs((se.longitude - nw.longitude) * (nw.latitude - se.latitude)) * factor;
    std::list<int> areas;
    hlp_getBestFittingAreaList(*this, nw, se, 0, target, areas);
    return areas;
}

std::list<int> IChartElementSource::getLeafesFromAreaList(const std::list<int>& areas) {
    std::list<int> leafs;
    for (const int area : areas)
        appendLeafes(*this, area, leafs);
    return leafs;
}

void IChartElementSource::getLeafesFromAreaList(std::list<int>& leafs, const std::vector<int>& areas) {
    for (const int area : areas)
        appendLeafes(*this, area, leafs);
}

} // namespace skyvane

#include "terrain/paging/TerrainRequests.h"

#include "chart/areas/AreaQueries.h"
#include "chart/geodesy/Angles.h"

namespace skyvane {

std::map<int, bool> PointCall::findAreas(IChartElementSource* chart) const {
    std::map<int, bool> leafs;
    for (const ChartPosition& position : positions)
        hlp_findAreas(0, chart, ChartPosition(Angle0to360(position.longitude), position.latitude), leafs);
    return leafs;
}

} // namespace skyvane

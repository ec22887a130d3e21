#include "terrain/paging/TerrainRequests.h"

#include "chart/areas/AreaQueries.h"

namespace skyvane {

std::map<int, bool> PointCall::findAreas(IChartElementSource* chart) const {
    std::map<int, bool> leafs;
    for (const ChartPosition& position : positions)
        hlp_findAreas(0, chart, position, leafs);
    return leafs;
}

} // namespace skyvane

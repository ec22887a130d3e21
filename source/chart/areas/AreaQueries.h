#pragma once

#include "chart/geodesy/ChartPosition.h"

#include <list>
#include <map>

namespace skyvane {

class IChartElementSource;

// The walks down the area tree behind the queries of IChartElementSource.

/// Appends the numbers of areas below `index` that cover the rectangle: children that overlap it, as long as the area
/// is larger than `targetSquareDegrees`; the area itself where that ends. Longitudes 0 to 360, west not above east.
void hlp_getBestFittingAreaList(IChartElementSource& source, const ChartPosition& nw, const ChartPosition& se,
                                int index, double targetSquareDegrees, std::list<int>& areas);

/// Appends the leaves at or below an area, depth first; nothing for what is no area.
void appendLeafes(IChartElementSource& source, int index, std::list<int>& leafs);

/// Appends the ids of the elements at or below an area whose position lies within the range; of the airports alone when
/// asked for. Private heliports are left out, and so is what can't be loaded.
void appendElementsInVicinity(IChartElementSource& source, int index, const ChartPosition& position, double rangeMetres,
                              bool airportsOnly, std::list<int>& elements);

/// Marks the leaves at or below an area that contain the position.
void hlp_findAreas(int index, IChartElementSource* source, const ChartPosition& position, std::map<int, bool>& leafs);

} // namespace skyvane

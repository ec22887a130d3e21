#pragma once

#include "chart/geodesy/ChartPosition.h"

#include <list>
#include <vector>

namespace skyvane {

class IArea;
class IChartElement;

/// Where charts are read: elements by their ids, and the areas of the earth that know which elements touch them.
///
/// Main thread only. To see a view without touching the disk: ask getBestFittingAreaList for its cells, walk down with
/// IArea::Overlap, judge each element of a leaf by its three static bytes, and fetch only those that pass.
class IChartElementSource {
public:
    /// The element, null when there is none; the source's, and to be used before the next call only.
    virtual IChartElement* getChartElement(int id) = 0;
    /// The area of that number, null outside the tree.
    virtual IArea* getArea(int index) = 0;

    /// Ids of the elements whose position lies within a range of nautical miles, or of the airports alone. Private
    /// heliports are left out. Lines and polygons come once for each leaf they lie in. Not for the last degree at the
    /// poles, where the square around the position doesn't hold all of the circle.
    virtual std::list<int> findChartElementsInVicinity(ChartPosition position, double rangeNauticalMiles,
                                                       bool airportsOnly);

    /// Numbers of areas that together cover a rectangle, of about its size times `factor`: few and large ones for a
    /// large view. A rectangle that crosses longitude 0 comes as its western piece, then the one from 0 on. Nothing
    /// when a corner isn't finite.
    virtual std::list<int> getBestFittingAreaList(ChartPosition nw, ChartPosition se, double factor);

    /// The leaves below these areas, depth first. A number that is no area is skipped.
    virtual std::list<int> getLeafesFromAreaList(const std::list<int>& areas);
    /// The same, appended to a list.
    virtual void getLeafesFromAreaList(std::list<int>& leafs, const std::vector<int>& areas);

    virtual ~IChartElementSource() = default;
};

} // namespace skyvane

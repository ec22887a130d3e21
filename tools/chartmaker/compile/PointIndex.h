#pragma once

#include "chart/elements/IChartElement.h"
#include "chart/elements/Navaid.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace skyvane {

/// The named points of a compile by their idents: where records of one object meet, and airways find their ends.
///
/// Knows points outside the region too, since an airway may come from there.
class PointIndex {
public:
    static constexpr size_t None = static_cast<size_t>(-1);
    /// More points of one ident aren't found: no real source has them.
    static constexpr size_t MostOfIdent = 4096;

    struct Point {
        IChartElement::Type type;
        ChartPosition position;
        std::string icaoRegion; ///< Empty when the source didn't tell.
        size_t element = None;  ///< Number of the element in the compile; None outside the region.
        AirwayUse use;          ///< By the airways that were read.
    };

    void add(const std::string& ident, Point point);
    /// Numbers of the points with that ident, in the order in which they were added, at most MostOfIdent.
    const std::vector<size_t>& find(const std::string& ident) const;
    /// The fix or navaid of that ident nearest to a place, None when there is none closer than `metres`.
    size_t findNearest(const std::string& ident, const ChartPosition& place, double metres) const;

    Point& operator[](size_t number) { return points_[number]; }
    const Point& operator[](size_t number) const { return points_[number]; }
    size_t size() const { return points_.size(); }

private:
    std::vector<Point> points_;
    std::unordered_map<std::string, std::vector<size_t>> numbers_;
};

} // namespace skyvane

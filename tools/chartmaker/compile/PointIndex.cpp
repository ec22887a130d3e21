#include "chartmaker/compile/PointIndex.h"

#include "chart/geodesy/GreatCircle.h"

namespace skyvane {

void PointIndex::add(const std::string& ident, Point point) {
    std::vector<size_t>& numbers = numbers_[ident];
    if (numbers.size() < MostOfIdent)
        numbers.push_back(points_.size());
    points_.push_back(std::move(point));
}

const std::vector<size_t>& PointIndex::find(const std::string& ident) const {
    static const std::vector<size_t> none;
    const auto found = numbers_.find(ident);
    return found == numbers_.end() ? none : found->second;
}

size_t PointIndex::findNearest(const std::string& ident, const ChartPosition& place, double metres) const {
    size_t nearest = None;
    for (const size_t number : find(ident)) {
        const Point& point = points_[number];
        const double away = calcDistance2(place, point.position);
        if (point.type == IChartElement::AIRPORT || away >= metres)
            continue;
        metres = away;
        nearest = number;
    }
    return nearest;
}

} // namespace skyvane

#include "chartmaker/compile/PlaceGrid.h"

#include "chart/geodesy/EarthConstants.h"
#include "chart/geodesy/GreatCircle.h"

#include <cmath>
#include <functional>

namespace skyvane {
namespace {

constexpr double CellMetres = 2.0 * PlaceGrid::ReachMetres;

} // namespace

PlaceGrid::Cell PlaceGrid::cellAt(const ChartPosition& position, double shift) {
    const auto unit = calcVectorFromChartPositionf64(position.longitude, position.latitude);
    const auto index = [shift](double axis) {
        return static_cast<int64_t>(std::floor((axis * EarthRadiusMetres + shift) / CellMetres));
    };
    return {index(unit.X), index(unit.Y), index(unit.Z)};
}

uint64_t PlaceGrid::keyOf(const Cell& cell, const std::string& name) {
    constexpr uint64_t multiplier = 0x9e3779b97f4a7c15u; // 2^64 by the golden ratio: spreads neighbours
    uint64_t key = std::hash<std::string>()(name);
    for (const int64_t part : {cell.x, cell.y, cell.z})
        key = (key ^ static_cast<uint64_t>(part)) * multiplier + (key >> 29);
    return key;
}

void PlaceGrid::add(const ChartPosition& position, const std::string& name, size_t number) {
    numbers_.emplace(keyOf(cellAt(position, 0.0), name), number);
}

} // namespace skyvane

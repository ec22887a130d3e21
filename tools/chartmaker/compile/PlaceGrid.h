#pragma once

#include "chart/geodesy/ChartPosition.h"

#include <cstdint>
#include <string>
#include <unordered_map>

namespace skyvane {

/// Finds what lies near a place under a name, in constant time: cells of space round the unit sphere, so that neither
/// poles nor the antimeridian are special.
class PlaceGrid {
public:
    /// All within this distance are found, and some beyond.
    static constexpr double ReachMetres = 3100.0;

    void add(const ChartPosition& position, const std::string& name, size_t number);

    /// Calls visit(number), which returns true to end the search with that number as result; otherwise None.
    template <class Visit>
    size_t findNear(const ChartPosition& position, const std::string& name, Visit&& visit) const;

    static constexpr size_t None = static_cast<size_t>(-1);

private:
    struct Cell {
        int64_t x, y, z;
    };
    /// Of the place moved by `shift` metres along all axes.
    static Cell cellAt(const ChartPosition& position, double shift);
    static uint64_t keyOf(const Cell& cell, const std::string& name);

    std::unordered_multimap<uint64_t, size_t> numbers_;
};

template <class Visit>
size_t PlaceGrid::findNear(const ChartPosition& position, const std::string& name, Visit&& visit) const {
    const Cell low = cellAt(position, -ReachMetres), high = cellAt(position, ReachMetres);
    for (Cell cell = low; cell.x <= high.x; ++cell.x)
        for (cell.y = low.y; cell.y <= high.y; ++cell.y)
            for (cell.z = low.z; cell.z <= high.z; ++cell.z) {
                const auto [begin, end] = numbers_.equal_range(keyOf(cell, name));
                for (auto it = begin; it != end; ++it)
                    if (visit(it->second))
                        return it->second;
            }
    return None;
}

} // namespace skyvane

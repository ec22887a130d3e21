#pragma once

#include "chart/areas/AreaGrid.h"
#include "chart/geodesy/ChartPosition.h"

#include <optional>
#include <set>
#include <string>
#include <vector>

namespace skyvane {

class IChartElement;

/// The part of the world that a chart set covers: all of it, a box, or some countries.
///
///     std::string error;
///     if (const auto region = Region::parse("CH,AT", error)) ...
///
/// Airports and navaids come with their country. What comes without one belongs to countries when it touches a cell of
/// half a degree in which one of their airports or navaids lies, or a neighbour of such a cell: these are to be added
/// first.
class Region {
public:
    Region() = default;

    /// "world"; a box "WEST,SOUTH,EAST,NORTH" in degrees, whose west may lie east of its east when it crosses the
    /// antimeridian; or ISO country codes "CH,AT".
    static std::optional<Region> parse(const std::string& text, std::string& error);

    bool isWorld() const { return kind_ == Kind::World; }
    /// Whether an object of that country at that place belongs. Remembers where the countries are.
    bool takes(const std::string& country, const ChartPosition& position);
    /// Whether a place belongs.
    bool contains(const ChartPosition& position) const;
    /// Whether the rectangle round the points that define an element has a place in common with the region.
    bool touches(const IChartElement& element) const;
    /// The same for a rectangle; longitudes go east from west to east. What isn't finite touches nothing.
    bool touches(const ChartPosition& northWest, const ChartPosition& southEast) const;

    bool isBox() const { return kind_ == Kind::Box; }
    bool isCountries() const { return kind_ == Kind::Countries; }
    /// The corners of a box; the eastern longitude is above the western one, by a turn at most.
    const ChartPosition& getNorthWest() const { return northWest_; }
    const ChartPosition& getSouthEast() const { return southEast_; }

private:
    enum class Kind { World, Box, Countries };

    Kind kind_ = Kind::World;
    ChartPosition northWest_; ///< Of the box.
    ChartPosition southEast_; ///< Its longitude is at most a turn above that of the west edge.
    std::set<std::string> countries_;
    std::vector<bool> cells_; ///< Of the countries, by column and row; empty without one.
};

} // namespace skyvane

#pragma once

#include "demo/region/IslandShape.h"
#include "demo/region/Waterways.h"

#include <memory>

namespace skyvane::demo {

/// Levelled ground for a runway: a plane along its line, level across.
struct Pad {
    Spot from;
    Spot to;
    double fromMetres;
    double toMetres;
    double halfWidth; ///< Metres to each side, and beyond the ends, that are level.
};

/// The ground of the fictional islands: the one truth about heights that charts and terrain share.
///
///     Landscape landscape(seed);
///     landscape.addPad({...});                        // charts: level the runways first
///     double metres = landscape.height(spot);         // then ask anywhere, at any resolution
///
/// Rivers never flow uphill on it, the lake is level, and pads are planes. Takes about a second to make; height() takes
/// about a microsecond and may be asked from several threads once all pads are there.
class Landscape {
public:
    static constexpr double SummitMetres = 2600.0; ///< About the highest.

    explicit Landscape(uint64_t seed);

    /// Metres above the sea; below 0 at sea.
    double height(Spot spot) const;
    /// About the distance to the coast: positive on land, 0 on the coastline, where height() changes its sign.
    double coast(Spot spot) const { return shape_.coast(spot); }
    void addPad(const Pad& pad) { pads_.push_back(pad); }
    /// The distance to the nearest pad's level ground, in metres; 0 on it.
    double distanceToPads(Spot spot) const;

    const Waterways& getWaterways() const { return *waterways_; }
    /// The heights without pads and details at the nodes of the grid, for searches.
    const HeightGrid& getGrid() const { return grid_; }

private:
    double dryGround(Spot spot) const;
    double levelForPads(Spot spot, double metres) const;

    IslandShape shape_;
    Noise rocks_;
    HeightGrid grid_;
    std::unique_ptr<Waterways> waterways_;
    std::vector<Pad> pads_;
};

} // namespace skyvane::demo

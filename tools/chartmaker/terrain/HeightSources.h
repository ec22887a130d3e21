#pragma once

#include "terrain/files/TerrainTile.h"

#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace skyvane {

/// Files of heights in metres as one ground: SRTM tiles (.hgt of 1201 or 3601 samples, zipped or not), GeoTIFF and
/// other formats of elevation models, in any projection that they name. Where files overlap, the later one counts.
class HeightSources {
public:
    /// A leaf of the terrain tree by its west and north edge in whole degrees, west 0 to 359.
    using Cell = std::pair<int, int>;

    HeightSources();
    ~HeightSources();
    HeightSources(const HeightSources&) = delete;
    HeightSources& operator=(const HeightSources&) = delete;

    /// False, with the words in `error`, when the file can't be read or doesn't say where on earth it lies.
    bool add(const std::string& path, std::string& error);
    /// The cells that the files touch.
    const std::set<Cell>& getCells() const { return cells_; }
    /// Fills TileSamples heights of a cell, NoHeight where no file has data. False when nothing came.
    bool sample(const Cell& cell, int16_t* heights) const;

private:
    struct Files;
    std::unique_ptr<Files> files_;
    std::set<Cell> cells_;
};

} // namespace skyvane

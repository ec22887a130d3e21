#pragma once

#include <memory>
#include <set>
#include <string>
#include <vector>

namespace skyvane {

/// Pixels of a side of a background tile.
constexpr int BackgroundTilePixels = 512;

/// Raster charts (GeoTIFF and others that say where on earth they lie, in any projection) as one picture. Where charts
/// overlap, the later one covers the earlier, but for its transparent pixels.
class ChartRasters {
public:
    ChartRasters();
    ~ChartRasters();
    ChartRasters(const ChartRasters&) = delete;
    ChartRasters& operator=(const ChartRasters&) = delete;

    /// False, with the words in `error`, when the file can't be read or doesn't say where on earth it lies.
    bool add(const std::string& path, std::string& error);
    /// The leaves of the area tree that the charts touch.
    const std::set<int>& getAreas() const { return areas_; }
    /// The tile of a leaf over the picture in the file `below`, if there is one, as the bytes of a PNG. Empty when
    /// nothing of the charts lies in it.
    std::string makeTile(int area, const std::string& below) const;

private:
    struct Charts;
    std::unique_ptr<Charts> charts_;
    std::set<int> areas_;
};

} // namespace skyvane

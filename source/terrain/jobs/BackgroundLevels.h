#pragma once

#include "chart/areas/IArea.h"
#include "terrain/tree/ITerrainProgress.h"

#include <cstdint>
#include <list>
#include <string>
#include <vector>

namespace skyvane {

/// A picture as plain pixels, ARGB with alpha in the top byte, rows from north to south.
struct BackgroundImage {
    int width = 0;
    int height = 0;
    std::vector<uint32_t> pixels;
};

/// Where the pictures of background tiles of one vendor and type come from and go to.
class IBackgroundTiles {
public:
    /// False when there is none that can be read.
    virtual bool load(int area, BackgroundImage& image) = 0;
    /// In place of an old one as a whole or not at all; false when the disk refuses.
    virtual bool save(int area, const BackgroundImage& image) = 0;
    virtual void remove(int area) = 0;
    virtual ~IBackgroundTiles() = default;
};

/// Pixels of one side of a computed tile.
constexpr int BackgroundLevelSize = 512;

/// The picture of an area from those of its children: each pixel is the mean of the children's pixels that lie in it
/// and have any alpha, opaque; transparent where there are none. False when no child has a picture.
bool calculateMipMapLevel(IArea* const* table, int index, int size, IBackgroundTiles& tiles, BackgroundImage& image);

/// Computes the coarser tiles above those given, from the deepest to the root, and lists them in `computed`. Tiles that
/// are given stay as they are; others that lie about, of a run that was killed, aren't believed. False when it was
/// cancelled or the disk refused: what was computed is removed again then.
bool calculateMipMaps(const std::list<int>& given, std::list<int>& computed, int size, IArea* const* table,
                      IBackgroundTiles& tiles, ITerrainProgress& progress);

/// Makes the tiles above those of a vendor's packages anew, and the list of them: what was made before goes. A
/// cancelled run leaves no list, and so does a vendor without tiles of the type; run a cancelled one again. The images
/// folder comes with a slash at its end.
bool syncBackgrounds(const std::string& imagesFolder, const std::string& vendor, IArea::BgType type,
                     IArea* const* table, IBackgroundTiles& tiles, ITerrainProgress& progress);

} // namespace skyvane

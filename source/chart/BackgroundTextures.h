#pragma once

#include "chart/store/LRUCache.h"
#include "terrain/files/VendorBackgrounds.h"

#include <array>
#include <irrlicht.h>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace skyvane {

class Drawer2D;
class IProgressCallback;

/// The background maps: which tiles each vendor has, and the pictures of those that were used last. Main thread only.
class BackgroundTextures {
public:
    /// So many pictures of each type are kept. The drawer outlives it.
    BackgroundTextures(Drawer2D* drawer, size_t limit);
    ~BackgroundTextures();
    BackgroundTextures(const BackgroundTextures&) = delete;
    BackgroundTextures& operator=(const BackgroundTextures&) = delete;

    /// Reads the lists of a folder, which comes with a slash at its end; a step for each. No vendor is chosen then.
    void load(const std::string& imagesFolder, IProgressCallback* steps);
    /// No lists, no pictures.
    void clear();
    std::vector<std::string> getVendorNames() const;
    /// A vendor without tiles will do.
    void selectVendor(const std::string& name);

    /// The tile from the first list of the vendor that has it; null without one, or when its picture can't be read.
    irr::video::ITexture* get(IArea::BgType type, int area);
    void clearPictures();
    /// Clears them and keeps fewer from now on (see lowerCacheLimit).
    void shrink();
    size_t getLimit() const { return pictures_.front().getLimit(); }

private:
    /// A picture that leaves the driver with its entry; null for a tile that there isn't.
    class Picture {
    public:
        Picture(irr::video::ITexture* texture, irr::video::IVideoDriver* driver) : texture_(texture), driver_(driver) {}
        Picture(Picture&& other) noexcept : texture_(other.texture_), driver_(other.driver_) {
            other.texture_ = nullptr;
        }
        Picture& operator=(Picture&&) = delete;
        ~Picture() {
            if (texture_)
                driver_->removeTexture(texture_);
        }
        irr::video::ITexture* get() const { return texture_; }

    private:
        irr::video::ITexture* texture_;
        irr::video::IVideoDriver* driver_;
    };
    using Lists = std::vector<std::unique_ptr<VendorBackgrounds>>;
    using Pictures = LRUCache<int, Picture>;

    irr::video::ITexture* loadTile(IArea::BgType type, int area) const;

    Drawer2D* drawer_;
    irr::video::IVideoDriver* driver_;
    std::map<std::string, Lists> vendors_;
    const Lists* current_ = nullptr;
    std::array<Pictures, 4> pictures_; ///< By type; the last has none.
    size_t lowestLimit_;
};

} // namespace skyvane

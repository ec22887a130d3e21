#pragma once

#include "terrain/jobs/BackgroundLevels.h"

#include <irrlicht.h>
#include <string>

namespace skyvane {

/// The background tiles of one vendor and type as picture files, read and written by the engine. Main thread only.
class BackgroundPictures final : public IBackgroundTiles {
public:
    /// The folder is the vendor's, with a slash at its end. The driver outlives the object.
    BackgroundPictures(irr::video::IVideoDriver* driver, std::string folder, IArea::BgType type)
        : driver_(driver), folder_(std::move(folder)), type_(type) {}

    bool load(int area, BackgroundImage& image) override;
    bool save(int area, const BackgroundImage& image) override;
    void remove(int area) override;

private:
    std::string path(int area) const;

    irr::video::IVideoDriver* driver_;
    std::string folder_;
    IArea::BgType type_;
};

} // namespace skyvane

#pragma once

#include <irrlicht.h>

namespace skyvane {

/// Lets the engine read the program's own textures by a copy; it asks its other loaders for pictures that this one
/// declines. To be added to the driver before the first picture is read.
class StoredPngLoader : public irr::video::IImageLoader {
public:
    /// The driver outlives it.
    explicit StoredPngLoader(irr::video::IVideoDriver* driver) : driver_(driver) {}

    bool isALoadableFileExtension(const irr::io::path& name) const override;
    bool isALoadableFileFormat(irr::io::IReadFile* file) const override;
    irr::video::IImage* loadImage(irr::io::IReadFile* file) const override;

private:
    irr::video::IVideoDriver* driver_;
};

} // namespace skyvane

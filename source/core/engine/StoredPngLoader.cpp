#include "core/engine/StoredPngLoader.h"

#include "core/engine/EngineRef.h"
#include "core/files/StoredPng.h"

#include <algorithm>
#include <vector>

namespace skyvane {

bool StoredPngLoader::isALoadableFileExtension(const irr::io::path& name) const {
    return irr::core::hasFileExtension(name, "png");
}

bool StoredPngLoader::isALoadableFileFormat(irr::io::IReadFile*) const {
    return false;
}

irr::video::IImage* StoredPngLoader::loadImage(irr::io::IReadFile* file) const {
    std::vector<uint8_t> bytes(static_cast<size_t>(std::max(file->getSize(), 0L)));
    if (file->read(bytes.data(), static_cast<irr::u32>(bytes.size())) != static_cast<irr::s32>(bytes.size()))
        return nullptr;
    const StoredPng picture(bytes.data(), bytes.size());
    if (!picture.isStored())
        return nullptr;
    auto image = EngineRef<irr::video::IImage>::adopt(
        driver_->createImage(irr::video::ECF_A8R8G8B8, {picture.getWidth(), picture.getHeight()}));
    const bool complete = image && picture.copyPixels(static_cast<uint32_t*>(image->lock()));
    if (image)
        image->unlock();
    if (!complete)
        return nullptr;
    image->grab(); // the caller's
    return image.get();
}

} // namespace skyvane

#include "core/engine/MipmappedTexture.h"

#include "core/engine/EngineRef.h"
#include "core/geometry/MipmapChain.h"

namespace skyvane {

namespace {

using irr::video::IImage;
using irr::video::ITexture;

EngineRef<IImage> readImage(irr::video::IVideoDriver* driver, const std::string& path) {
    auto image = EngineRef<IImage>::adopt(driver->createImageFromFile(path.c_str()));
    if (!image || image->getColorFormat() == irr::video::ECF_A8R8G8B8)
        return image;
    auto converted = EngineRef<IImage>::adopt(driver->createImage(irr::video::ECF_A8R8G8B8, image->getDimension()));
    if (converted)
        image->copyTo(converted.get());
    return converted;
}

} // namespace

ITexture* loadMipmappedTexture(irr::video::IVideoDriver* driver, const std::string& path) {
    if (ITexture* known = driver->findTexture(path.c_str()))
        return known;
    const EngineRef<IImage> image = readImage(driver, path);
    return image ? addMipmappedTexture(driver, path, *image) : nullptr;
}

ITexture* addMipmappedTexture(irr::video::IVideoDriver* driver, const std::string& name, IImage& image) {
    const irr::core::dimension2d<irr::u32> size = image.getDimension();
    std::vector<uint32_t> chain = makeMipmapChain(static_cast<const uint32_t*>(image.lock()), size.Width, size.Height);
    image.unlock();
    return driver->addTexture(name.c_str(), &image, chain.empty() ? nullptr : chain.data());
}

} // namespace skyvane

#include "core/engine/MipmappedTexture.h"

#include "core/files/Paths.h"
#include "core/files/PngHead.h"
#include "core/geometry/MipmapChain.h"
#include "core/log/Logger.h"

#include <fstream>

namespace skyvane {

using irr::video::IImage;
using irr::video::ITexture;

namespace {

/// Its bytes may be anybody's. The engine would take any of its formats by any name, and allocates what they claim.
bool isUsablePng(const std::string& path) {
    constexpr uint32_t longestSide = 8192;
    uint8_t bytes[PngHead::Bytes] = {};
    std::ifstream(path, std::ios::binary).read(reinterpret_cast<char*>(bytes), sizeof bytes);
    ByteReader reader(bytes, sizeof bytes);
    const std::optional<PngHead> head = readPngHead(reader);
    return head && head->width <= longestSide && head->height <= longestSide;
}

} // namespace

EngineRef<IImage> readArgbImage(irr::video::IVideoDriver* driver, const std::string& path) {
    if (!isUsablePng(path)) {
        if (fileExist(path))
            logText("No picture, or one that is too large: " + path + "\n");
        return {};
    }
    auto image = EngineRef<IImage>::adopt(driver->createImageFromFile(path.c_str()));
    if (!image || image->getColorFormat() == irr::video::ECF_A8R8G8B8)
        return image;
    auto converted = EngineRef<IImage>::adopt(driver->createImage(irr::video::ECF_A8R8G8B8, image->getDimension()));
    if (converted)
        image->copyTo(converted.get());
    return converted;
}

ITexture* loadMipmappedTexture(irr::video::IVideoDriver* driver, const std::string& path) {
    if (ITexture* known = driver->findTexture(path.c_str()))
        return known;
    const EngineRef<IImage> image = readArgbImage(driver, path);
    if (!image && !fileExist(path))
        logText("There is no picture " + path + "\n");
    return image ? addMipmappedTexture(driver, path, *image) : nullptr;
}

ITexture* addMipmappedTexture(irr::video::IVideoDriver* driver, const std::string& name, IImage& image) {
    const irr::core::dimension2d<irr::u32> size = image.getDimension();
    std::vector<uint32_t> chain = makeMipmapChain(static_cast<const uint32_t*>(image.lock()), size.Width, size.Height);
    image.unlock();
    return driver->addTexture(name.c_str(), &image, chain.empty() ? nullptr : chain.data());
}

} // namespace skyvane

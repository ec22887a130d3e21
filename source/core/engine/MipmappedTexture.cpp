#include "core/engine/MipmappedTexture.h"

#include "core/bytes/ByteReader.h"
#include "core/geometry/MipmapChain.h"
#include "core/log/Logger.h"

#include <fstream>

namespace skyvane {

using irr::video::IImage;
using irr::video::ITexture;

namespace {

/// Its bytes may be anybody's, and the engine allocates what they claim.
bool isTooLargePng(const std::string& path) {
    constexpr uint64_t signature = 0x89504e470d0a1a0a;
    constexpr uint32_t longestSide = 8192;
    uint8_t head[24] = {};
    std::ifstream(path, std::ios::binary).read(reinterpret_cast<char*>(head), sizeof head);
    ByteReader reader(head, sizeof head);
    if (reader.big<uint64_t>() != signature)
        return false;
    reader.big<uint64_t>(); // length and name of the first chunk
    const auto width = reader.big<uint32_t>(), height = reader.big<uint32_t>();
    return width > longestSide || height > longestSide;
}

} // namespace

EngineRef<IImage> readArgbImage(irr::video::IVideoDriver* driver, const std::string& path) {
    if (isTooLargePng(path)) {
        logText("Too large for a picture: " + path + "\n");
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
    return image ? addMipmappedTexture(driver, path, *image) : nullptr;
}

ITexture* addMipmappedTexture(irr::video::IVideoDriver* driver, const std::string& name, IImage& image) {
    const irr::core::dimension2d<irr::u32> size = image.getDimension();
    std::vector<uint32_t> chain = makeMipmapChain(static_cast<const uint32_t*>(image.lock()), size.Width, size.Height);
    image.unlock();
    return driver->addTexture(name.c_str(), &image, chain.empty() ? nullptr : chain.data());
}

} // namespace skyvane

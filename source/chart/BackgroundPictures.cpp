#include "chart/BackgroundPictures.h"

#include "core/engine/EngineRef.h"
#include "core/engine/MipmappedTexture.h"
#include "core/files/SafeFile.h"
#include "terrain/files/BackgroundList.h"

#include <cstdio>
#include <cstring>
#include <ostream>

namespace skyvane {
namespace {

constexpr size_t BytesPerPixel = sizeof(uint32_t);

/// A file of the engine's that is a stream of ours. Its name says the format.
class StreamFile : public irr::io::IWriteFile {
public:
    explicit StreamFile(std::ostream& out) : out_(out) {}
    irr::s32 write(const void* buffer, irr::u32 size) override {
        out_.write(static_cast<const char*>(buffer), size);
        return out_ ? static_cast<irr::s32>(size) : 0;
    }
    bool seek(long, bool) override { return false; }
    long getPos() const override { return static_cast<long>(out_.tellp()); }
    const irr::io::path& getFileName() const override { return name_; }

private:
    std::ostream& out_;
    irr::io::path name_ = BackgroundTileEnding;
};

} // namespace

std::string BackgroundPictures::path(int area) const {
    return folder_ + getBgPrefix(type_) + std::to_string(area) + BackgroundTileEnding;
}

bool BackgroundPictures::load(int area, BackgroundImage& image) {
    const EngineRef<irr::video::IImage> picture = readArgbImage(driver_, path(area));
    if (!picture)
        return false;
    image.width = static_cast<int>(picture->getDimension().Width);
    image.height = static_cast<int>(picture->getDimension().Height);
    const size_t width = picture->getDimension().Width;
    image.pixels.resize(width * picture->getDimension().Height);
    const auto* row = static_cast<const unsigned char*>(picture->lock());
    for (size_t first = 0; first < image.pixels.size(); first += width, row += picture->getPitch())
        std::memcpy(image.pixels.data() + first, row, width * BytesPerPixel);
    picture->unlock();
    return true;
}

bool BackgroundPictures::save(int area, const BackgroundImage& image) {
    const irr::core::dimension2du size(static_cast<irr::u32>(image.width), static_cast<irr::u32>(image.height));
    const auto picture = EngineRef<irr::video::IImage>::adopt(driver_->createImageFromData(
        irr::video::ECF_A8R8G8B8, size, const_cast<uint32_t*>(image.pixels.data()), false));
    return picture && saveFileSafely(path(area), [&](std::ostream& out) {
                          StreamFile file(out);
                          if (!driver_->writeImageToFile(picture.get(), &file))
                              out.setstate(std::ios::badbit);
                      }) == 0;
}

void BackgroundPictures::remove(int area) {
    std::remove(path(area).c_str());
}

} // namespace skyvane

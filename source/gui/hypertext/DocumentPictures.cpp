#include "gui/hypertext/DocumentPictures.h"

#include "core/engine/AssetFiles.h"
#include "core/engine/EngineRef.h"
#include "core/log/Logger.h"
#include "displays/drawing/Drawer2D.h"
#include "gui/hypertext/pages/PictureHeader.h"
#include "gui/skin/Skin.h"

#include <algorithm>
#include <vector>

namespace skyvane {
namespace {

using Size = irr::core::dimension2d<irr::u32>;
using Rect = irr::core::rect<int>;

/// Null under a skin that isn't the program's.
Drawer2D* drawerOf(irr::IrrlichtDevice* device) {
    const auto* skin = dynamic_cast<const Skin*>(device->getGUIEnvironment()->getSkin());
    return skin ? skin->getDrawer() : nullptr;
}

} // namespace

/// A picture as it was read, and textures of it in the sizes in which the page shows it: scaled here, so that small
/// letters in it stay readable.
class DocumentPictures::Source {
public:
    Source(irr::video::IVideoDriver* driver, EngineRef<irr::video::IImage> image)
        : driver_(driver), image_(std::move(image)) {}
    ~Source() { removeTextures(); }
    Source(const Source&) = delete;
    Source& operator=(const Source&) = delete;

    Size size() const { return image_->getDimension(); }

    irr::video::ITexture* textureFor(const Rect& place) {
        const Size own = size();
        const Size wanted(std::min(own.Width, static_cast<irr::u32>(std::max(1, place.getWidth()))),
                          std::min(own.Height, static_cast<irr::u32>(std::max(1, place.getHeight()))));
        for (irr::video::ITexture* texture : textures_)
            if (texture->getOriginalSize() == wanted)
                return texture;
        if (textures_.size() >= mostTextures)
            removeTextures();
        return make(wanted);
    }

private:
    static constexpr size_t mostTextures = 4;

    irr::video::ITexture* make(const Size& wanted) {
        const auto scaled =
            EngineRef<irr::video::IImage>::adopt(driver_->createImage(irr::video::ECF_A8R8G8B8, wanted));
        image_->copyToScalingBoxFilter(scaled.get());
        const bool mipmaps = driver_->getTextureCreationFlag(irr::video::ETCF_CREATE_MIP_MAPS);
        driver_->setTextureCreationFlag(irr::video::ETCF_CREATE_MIP_MAPS, false);
        static unsigned made = 0; // names are unique in the whole driver
        const irr::io::path name = irr::io::path(made++) + "no_tex_cache.png";
        irr::video::ITexture* texture = driver_->addTexture(name, scaled.get());
        driver_->setTextureCreationFlag(irr::video::ETCF_CREATE_MIP_MAPS, mipmaps);
        if (texture)
            textures_.push_back(texture);
        return texture;
    }

    void removeTextures() {
        for (irr::video::ITexture* texture : textures_)
            driver_->removeTexture(texture);
        textures_.clear();
    }

    irr::video::IVideoDriver* driver_;
    EngineRef<irr::video::IImage> image_;
    std::vector<irr::video::ITexture*> textures_;
};

class DocumentPictures::Picture : public IDocPicture {
public:
    Picture(Drawer2D* drawer, std::shared_ptr<Source> source) : drawer_(drawer), source_(std::move(source)) {}

    Size size() const override { return source_->size(); }
    void draw(const Rect& place, const Rect& clip) override {
        irr::video::ITexture* texture = source_->textureFor(place);
        if (!texture)
            return;
        if (drawer_) {
            drawer_->Draw(texture, place, &clip);
            drawer_->flush();
        }
    }

private:
    Drawer2D* drawer_;
    std::shared_ptr<Source> source_;
};

std::unique_ptr<IDocPicture> DocumentPictures::load(const std::string& path) {
    auto known = sources_.find(path);
    if (known == sources_.end())
        known = sources_.emplace(path, read(path)).first;
    if (known->second)
        return std::make_unique<Picture>(drawerOf(device_), known->second);
    if (!complained_)
        logText("The picture " + path + " of the manual can't be shown.\n");
    complained_ = true;
    return nullptr;
}

std::shared_ptr<DocumentPictures::Source> DocumentPictures::read(const std::string& path) {
    std::string bytes;
    if (!readFileWithAssetSupport(device_->getFileSystem(), path, bytes) || bytes.size() > largestPictureFile)
        return nullptr;
    const Size size = readPictureSize(bytes);
    const size_t pixels = static_cast<size_t>(size.Width) * size.Height;
    if (pixels == 0 || pixels_ + pixels > mostPixels)
        return nullptr;
    const auto file = EngineRef<irr::io::IReadFile>::adopt(device_->getFileSystem()->createMemoryReadFile(
        bytes.data(), static_cast<irr::s32>(bytes.size()), "figure.png"));
    auto image = EngineRef<irr::video::IImage>::adopt(device_->getVideoDriver()->createImageFromFile(file.get()));
    if (!image)
        return nullptr;
    pixels_ += pixels;
    return std::make_shared<Source>(device_->getVideoDriver(), std::move(image));
}

void DocumentPictures::clear() {
    sources_.clear();
    pixels_ = 0;
    complained_ = false;
}

} // namespace skyvane

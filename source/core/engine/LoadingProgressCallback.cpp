#include "core/engine/LoadingProgressCallback.h"

#include "core/engine/EngineRef.h"
#include "core/geometry/Rectangles.h"

#include <algorithm>

namespace skyvane {
namespace {

using Rect = irr::core::rect<irr::s32>;

/// The picture in the middle of the screen, two fifths of its height: small, because each step draws it again.
Rect fitted(const irr::core::dimension2d<irr::u32>& picture, const Rect& screen) {
    Rect place = screen;
    place.UpperLeftCorner.Y += screen.getHeight() * 3 / 10;
    place.LowerRightCorner.Y -= screen.getHeight() * 3 / 10;
    return makeXic(place, static_cast<float>(picture.Width) / static_cast<float>(std::max(picture.Height, 1u)));
}

} // namespace

LoadingProgressCallback::LoadingProgressCallback(irr::IrrlichtDevice* device, irr::video::ITexture* texture, float step)
    : device_(device), texture_(texture), step_(step) {
    irr::video::IVideoDriver* driver = device->getVideoDriver();
    const auto pixel = EngineRef<irr::video::IImage>::adopt(driver->createImage(irr::video::ECF_A8R8G8B8, {1, 1}));
    pixel->fill(irr::video::SColor(0xffffffff));
    white_ = driver->addTexture("loadingWhite", pixel.get());
}

LoadingProgressCallback::~LoadingProgressCallback() {
    device_->getVideoDriver()->removeTexture(white_);
}

void LoadingProgressCallback::nextStep() {
    progress_ = std::min(progress_ + step_, 1.0f);
    draw();
}

void LoadingProgressCallback::draw() {
    if (!device_->run())
        return;
    irr::video::IVideoDriver* driver = device_->getVideoDriver();
    const Rect screen(irr::core::position2di(0, 0), irr::core::dimension2di(driver->getScreenSize()));
    driver->beginScene(true, false, irr::video::SColor(255, 0, 0, 0));
    if (texture_) {
        const irr::core::dimension2d<irr::u32> size = texture_->getOriginalSize();
        driver->draw2DImage(texture_, fitted(size, screen),
                            Rect(irr::core::position2di(0, 0), irr::core::dimension2di(size)), nullptr, nullptr, true);
    }
    const irr::s32 height = std::max(screen.getHeight() / 90, 2);
    Rect bar(screen.getWidth() / 4, screen.getHeight() * 9 / 10, screen.getWidth() * 3 / 4, 0);
    bar.LowerRightCorner.Y = bar.UpperLeftCorner.Y + height;
    fill(bar, irr::video::SColor(255, 48, 54, 64));
    bar.LowerRightCorner.X = bar.UpperLeftCorner.X + static_cast<irr::s32>(bar.getWidth() * progress_);
    fill(bar, irr::video::SColor(255, 240, 244, 250));
    driver->endScene();
}

/// As a picture, like the one above it: a second way of drawing would have the driver prepare another shader first.
void LoadingProgressCallback::fill(const Rect& area, irr::video::SColor color) {
    const irr::video::SColor four[4] = {color, color, color, color};
    device_->getVideoDriver()->draw2DImage(white_, area, Rect(0, 0, 1, 1), nullptr, four, true);
}

} // namespace skyvane

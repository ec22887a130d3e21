#include "displays/instruments/PanelTexture.h"

#include "core/engine/MipmappedTexture.h"

#include "core/Context.h"
#include "core/log/Logger.h"

#include <utility>

namespace skyvane {

PanelTexture::PanelTexture(irr::video::IVideoDriver* driver, const std::string& path)
    : PanelTexture(driver, loadMipmappedTexture(driver, path)) {}

PanelTexture::PanelTexture(irr::video::IVideoDriver* driver, irr::video::ITexture* texture)
    : driver_(EngineRef<irr::video::IVideoDriver>::share(driver)),
      texture_(EngineRef<irr::video::ITexture>::share(texture)) {}

PanelTexture::~PanelTexture() {
    release();
}

PanelTexture& PanelTexture::operator=(PanelTexture&& other) {
    if (this != &other) {
        release();
        driver_ = std::move(other.driver_);
        texture_ = std::move(other.texture_);
    }
    return *this;
}

void PanelTexture::release() {
    constexpr int driversAndOurs = 2;
    if (texture_ && texture_->getReferenceCount() == driversAndOurs)
        driver_->removeTexture(texture_.get());
    texture_.reset();
}

PanelTexture loadPanelImage(Context* context, const char* path) {
    PanelTexture image(context->getIrrlichtDevice()->getVideoDriver(), context->getPath(path));
    if (!image)
        logText("A panel lacks its image " + std::string(path) + ".\n");
    return image;
}

} // namespace skyvane

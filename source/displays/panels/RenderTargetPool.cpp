#include "displays/panels/RenderTargetPool.h"

#include "core/log/Logger.h"
#include "core/text/Numbers.h"

namespace skyvane {

irr::video::ITexture* RenderTargetPool::requestRTT(const void* owner, int id, int size) {
    if (size < 1)
        return nullptr;
    if (void* shared = sharing_.share(owner, id, size)) {
        logText("rtt mehrfach verwendet\n");
        return static_cast<irr::video::ITexture*>(shared);
    }
    const auto edge = static_cast<irr::u32>(size);
    irr::video::ITexture* texture =
        driver_->addRenderTargetTexture(irr::core::dimension2d<irr::u32>(edge, edge),
                                        ("rtt" + std::to_string(rttCounter_)).c_str(), irr::video::ECF_A8R8G8B8);
    if (!texture)
        return nullptr;
    ++rttCounter_;
    sharing_.add(texture, owner, id, size);
    logText("size: " + toText(size) + " new count (rtts): " + toText(static_cast<int>(sharing_.count())) + "\n");
    return texture;
}

void RenderTargetPool::removeRequest(irr::video::ITexture* texture, const void* owner, int id) {
    if (sharing_.release(texture, owner, id))
        driver_->removeTexture(texture);
}

} // namespace skyvane

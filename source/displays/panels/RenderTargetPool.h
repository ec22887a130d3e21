#pragma once

#include "displays/layout/RenderTargetSharing.h"

#include <irrlicht.h>

namespace skyvane {

/// Square render targets that panels share by the rules of RenderTargetSharing. The driver owns the textures; they go
/// with their last user. Main thread only.
class RenderTargetPool {
public:
    explicit RenderTargetPool(irr::video::IVideoDriver* driver) : driver_(driver) {}

    /// Null when the driver has no such target.
    irr::video::ITexture* requestRTT(const void* owner, int id, int size);
    void removeRequest(irr::video::ITexture* texture, const void* owner, int id);

private:
    irr::video::IVideoDriver* driver_;
    RenderTargetSharing sharing_;
    unsigned rttCounter_ = 0;
};

} // namespace skyvane

#pragma once

#include "core/engine/EngineRef.h"

#include <irrlicht.h>
#include <string>

namespace skyvane {

class Context;

/// An image of a panel. Panels that name the same file share one texture; the last of them takes it from the driver.
class PanelTexture {
public:
    PanelTexture() = default;
    /// Empty when the file can't be read.
    PanelTexture(irr::video::IVideoDriver* driver, const std::string& path);
    /// Takes a texture that the driver already has.
    PanelTexture(irr::video::IVideoDriver* driver, irr::video::ITexture* texture);
    ~PanelTexture();
    PanelTexture(PanelTexture&&) = default;
    PanelTexture& operator=(PanelTexture&& other);

    irr::video::ITexture* get() const { return texture_.get(); }
    explicit operator bool() const { return static_cast<bool>(texture_); }

private:
    void release();

    EngineRef<irr::video::IVideoDriver> driver_;
    EngineRef<irr::video::ITexture> texture_;
};

/// An image below the program's home, such as media/lamp.png. A missing one is logged.
PanelTexture loadPanelImage(Context* context, const char* path);

} // namespace skyvane

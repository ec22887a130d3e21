#pragma once

#include <irrlicht.h>

namespace skyvane {

class FlexibleFontManager;

/// Sends the shader state of the font manager, which owns it, to the distance field material.
///
/// Names stand for locations here: the engine's services know only names, and look them up in their own list.
class SDFFCallback {
public:
    explicit SDFFCallback(const FlexibleFontManager& manager) : manager_(manager) {}
    virtual ~SDFFCallback() = default;

    virtual void OnSetConstants(irr::video::IMaterialRendererServices* services);

protected:
    const FlexibleFontManager& manager_;
};

} // namespace skyvane

#pragma once

#include <irrlicht.h>

namespace skyvane {

class FlexibleFontManager;

/// Sends the shader state of the font manager, which owns it, to the distance field material.
///
/// Talks to OpenGL itself, with locations looked up at the first call: the engine's services search a list of names at
/// each constant, and allocate. One callback belongs to one shader program.
class SDFFCallback {
public:
    explicit SDFFCallback(const FlexibleFontManager& manager) : manager_(manager) {}
    virtual ~SDFFCallback() = default;

    /// Called while the material's program is the current one.
    void OnSetConstants(irr::video::IMaterialRendererServices* services);

protected:
    virtual void findLocations(unsigned program);
    virtual void sendConstants() const;
    /// As red, green, blue, alpha from 0 to 1.
    static void sendColor(int location, irr::video::SColor color);

    const FlexibleFontManager& manager_;

private:
    void sendTransform(const irr::video::IVideoDriver& driver) const;

    bool found_ = false;
    int transform_ = -1;
    int textureUnit_ = -1;
    int smoothing_ = -1;
    int fatness_ = -1;
    int borderSize_ = -1;
    int borderColor_ = -1;
};

} // namespace skyvane

#pragma once

#include "core/engine/EngineRef.h"

#include <irrlicht.h>
#include <string>

namespace skyvane {

class Drawer2D;
struct NineParts;

/// One image with corners: a pane or a button of any size. The corners keep their shape, what lies between stretches.
///
/// The image's corners take a quarter of its side. On the screen they are as large as the smaller of two shares allows:
/// of the rectangle's shorter side and of the screen's. Main thread only; drawing allocates nothing.
class ButtonTexture {
public:
    /// A file that can't be read gives a texture that draws nothing. The drawer outlives it.
    ButtonTexture(irr::video::IVideoDriver* driver, Drawer2D* drawer, const std::string& file, float cornerOfShort,
                  float cornerOfScreen);

    /// `tint`: one colour per corner (upper left, upper right, lower left, lower right) that the image is multiplied
    /// with; null for white. Without `noInset` the rectangle shrinks by the corner's size on each side.
    void drawButton(const irr::core::rect<int>& rect, const irr::core::rect<int>* clip,
                    const irr::video::SColor* tint = nullptr, bool noInset = true) const;
    /// In a single colour.
    void drawTinted(const irr::core::rect<int>& rect, const irr::core::rect<int>* clip, irr::video::SColor tint) const;

    /// The edges and corners alone: what lies between is hidden by something else.
    void drawFrame(const irr::core::rect<int>& rect, const irr::core::rect<int>* clip, irr::video::SColor tint) const;

    bool isLoaded() const { return static_cast<bool>(texture_); }

private:
    int cornerOf(const irr::core::rect<int>& rect) const;
    void drawRectWithCorner(const irr::core::rect<int>& rect, const irr::core::rect<int>* clip, int corner,
                            const irr::video::SColor* tint, bool isFilled = true) const;
    void drawPart(const NineParts& parts, std::size_t column, std::size_t row, const irr::core::rect<int>* clip,
                  const irr::video::SColor* tint) const;

    irr::video::IVideoDriver* driver_;
    Drawer2D* drawer_;
    EngineRef<irr::video::ITexture> texture_;
    float cornerOfShort_;
    float cornerOfScreen_;
};

} // namespace skyvane

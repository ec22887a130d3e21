#pragma once

#include "core/engine/EngineRef.h"
#include "gui/font/TextMesh.h"
#include <irrlicht.h>
#include <string>

namespace skyvane {

class FlexibleFont;

/// One text of an instrument, held as a mesh that is built only when the text changes.
///
///     CachedText label;                       // a member of the instrument
///     label.set(font, L"KT", color);          // each frame; cheap while nothing changes
///     label.draw(rect, {0.5f, 0.5f}, true, true);
///
/// Neither set() nor draw() allocates while the text stays, nor for a text no longer than any before. Keeps
/// a reference to its font. Main thread only.
class CachedText {
public:
    CachedText();
    ~CachedText();
    CachedText(const CachedText&) = delete;
    CachedText& operator=(const CachedText&) = delete;

    /// Keeps text, colour and font; a new colour alone only recolours the mesh. `centered` centres each line.
    void set(FlexibleFont* font, const wchar_t* text, irr::video::SColor color, bool centered = false);

    /// Within the rectangle at this scale (pixels of the atlas to pixels of the screen), left and top or centred.
    void draw(const irr::core::rect<irr::s32>& rect, const irr::core::vector2d<float>& scale, bool hcenter,
              bool vcenter, const irr::core::rect<irr::s32>* clip = nullptr) const;
    /// With the middle of the text on `center`, in pixels from the upper left corner of the rectangle, turned
    /// counter-clockwise.
    void drawRotated(const irr::core::rect<irr::s32>& rect, const irr::core::vector2d<float>& center,
                     const irr::core::vector2d<float>& scale, float rotationDegrees) const;

    /// Pixels at scale 1; empty before the first set().
    const irr::core::dimension2d<irr::u32>& getDimension() const { return mesh_.getDimension(); }
    const std::wstring& getText() const { return mesh_.getText(); }
    unsigned long getRebuilds() const { return rebuilds_; }

private:
    static TextMesh::Look lookOf(const FlexibleFont& font, bool centered);

    EngineRef<FlexibleFont> font_;
    TextMesh mesh_;
    unsigned long rebuilds_ = 0;
};

} // namespace skyvane

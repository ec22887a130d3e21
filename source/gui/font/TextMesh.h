#pragma once

#include "core/engine/EngineRef.h"
#include <irrlicht.h>
#include <string>

namespace skyvane {

class FlexibleFont;

/// A text built into a mesh, with what it was built from. A text no longer than any before allocates nothing.
class TextMesh {
public:
    struct Look {
        int tabSize;
        float italicGradient;
        irr::video::E_MATERIAL_TYPE material;
        bool centered;
        bool operator==(const Look& other) const;
    };

    TextMesh();

    bool isOf(const wchar_t* text, size_t length, const Look& look) const;
    void build(const FlexibleFont& font, const wchar_t* text, const Look& look, irr::video::SColor color);
    /// Recolours the vertices, when the colour is another.
    void setColor(irr::video::SColor color);

    const irr::scene::IMeshBuffer* getMesh() const { return mesh_.get(); }
    /// Pixels at scale 1.
    const irr::core::dimension2d<irr::u32>& getDimension() const { return dimension_; }
    irr::core::dimension2d<irr::u32> getDimension(const irr::core::vector2d<float>& scale) const;
    const std::wstring& getText() const { return text_; }

private:
    EngineRef<irr::scene::SMeshBuffer> mesh_;
    std::wstring text_;
    Look look_;
    irr::video::SColor color_;
    irr::core::dimension2d<irr::u32> dimension_{0, 0};
};

} // namespace skyvane

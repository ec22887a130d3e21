#include "gui/font/CachedText.h"

#include "gui/font/FlexibleFont.h"
#include <cwchar>

namespace skyvane {

CachedText::CachedText() = default;
CachedText::~CachedText() = default;

void CachedText::set(FlexibleFont* font, const wchar_t* text, irr::video::SColor color, bool centered) {
    if (font_.get() != font)
        font_ = EngineRef<FlexibleFont>::share(font);
    else if (!font || mesh_.isOf(text, std::wcslen(text), lookOf(*font, centered))) {
        mesh_.setColor(color);
        return;
    }
    if (!font)
        return;
    mesh_.build(*font, text, lookOf(*font, centered), color);
    ++rebuilds_;
}

TextMesh::Look CachedText::lookOf(const FlexibleFont& font, bool centered) {
    return {font.getDefaultTabSize(), font.getDefaultItalicGradient(), font.getDefaultMaterialType(), centered};
}

void CachedText::draw(const irr::core::rect<irr::s32>& rect, const irr::core::vector2d<float>& scale, bool hcenter,
                      bool vcenter, const irr::core::rect<irr::s32>* clip) const {
    if (!font_)
        return;
    const irr::core::vector2d<float> before = font_->getDefaultScale();
    font_->setDefaultScale(scale);
    font_->drawFontMeshBuffer(mesh_.getMesh(), mesh_.getDimension(scale), rect, hcenter, vcenter, clip);
    font_->setDefaultScale(before);
}

void CachedText::drawRotated(const irr::core::rect<irr::s32>& rect, const irr::core::vector2d<float>& center,
                             const irr::core::vector2d<float>& scale, float rotationDegrees) const {
    if (!font_)
        return;
    FlexibleFont::Placement placement;
    placement.pivot.X = 0.5f * static_cast<float>(mesh_.getDimension().Width);
    placement.pivot.Y = 0.5f * static_cast<float>(mesh_.getDimension().Height);
    placement.scale = scale;
    placement.rotationDegrees = rotationDegrees;
    placement.translation = center;
    font_->drawFontMeshBuffer(mesh_.getMesh(), rect, font_->getDefaultStyle(), placement);
}

} // namespace skyvane

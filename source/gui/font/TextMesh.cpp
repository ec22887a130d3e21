#include "gui/font/TextMesh.h"

#include "gui/font/FlexibleFont.h"
#include "gui/glyphs/TextMeasure.h"

namespace skyvane {

bool TextMesh::Look::operator==(const Look& other) const {
    return tabSize == other.tabSize && italicGradient == other.italicGradient && material == other.material &&
           centered == other.centered;
}

TextMesh::TextMesh()
    : mesh_(EngineRef<irr::scene::SMeshBuffer>::adopt(new irr::scene::SMeshBuffer)), look_{0, 0.0f,
                                                                                           irr::video::EMT_SOLID,
                                                                                           false} {
    mesh_->setHardwareMappingHint(irr::scene::EHM_NEVER); // short-lived and small: not worth a buffer of the driver
}

bool TextMesh::isOf(const wchar_t* text, size_t length, const Look& look) const {
    return look == look_ && text_.size() == length && text_.compare(0, length, text, length) == 0;
}

void TextMesh::build(const FlexibleFont& font, const wchar_t* text, const Look& look, irr::video::SColor color) {
    text_ = text;
    look_ = look;
    color_ = color;
    mesh_->Vertices.set_used(0);
    mesh_->Indices.set_used(0);
    font.fillMeshBuffer(*mesh_, text, look.tabSize, look.centered, color, look.italicGradient, nullptr, look.material);
    dimension_ = font.getDimensionWithTabs(text, look.tabSize, {1.0f, 1.0f});
}

void TextMesh::setColor(irr::video::SColor color) {
    if (color == color_)
        return;
    color_ = color;
    for (irr::u32 i = 0; i < mesh_->Vertices.size(); ++i)
        mesh_->Vertices[i].Color = color;
}

irr::core::dimension2d<irr::u32> TextMesh::getDimension(const irr::core::vector2d<float>& scale) const {
    return scaleDimension(dimension_, scale);
}

} // namespace skyvane

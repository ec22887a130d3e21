#include "displays/vision/bars/BarWords.h"

#include "core/Context.h"
#include "gui/font/FlexibleFont.h"

#include <algorithm>

namespace skyvane {
namespace {

using irr::core::rect;
using irr::scene::SMeshBuffer;

constexpr float boldness = 0.46f; // below one half the strokes grow

bool isClipped(const BarText& text) {
    return text.clip.getWidth() > 0.0 && text.clip.getHeight() > 0.0;
}

} // namespace

BarWords::BarWords(Context* context) : context_(context), mesh_(EngineRef<SMeshBuffer>::adopt(new SMeshBuffer)) {
    mesh_->setHardwareMappingHint(irr::scene::EHM_NEVER);
    constexpr irr::u32 characters = 256;
    mesh_->Vertices.reallocate(4 * characters);
    mesh_->Indices.reallocate(6 * characters);
}

BarWords::~BarWords() = default;

void BarWords::measureDigits(const FlexibleFont& font) {
    const IFontLoader::Font& definition = font.getFontDefintion();
    const FontCharacter* zero = definition.findCharacter(L'0');
    if (!zero)
        return;
    // The picture of a glyph is larger than its ink, which ends at the base line.
    const int rim = zero->yoffset + zero->height - definition.base;
    digits_.top = static_cast<float>(zero->yoffset + rim);
    digits_.height = static_cast<float>(std::max(1, zero->height - 2 * rim));
}

/// The program's, measured; null without one.
FlexibleFont* BarWords::takeFont() {
    FlexibleFont* font = context_->getFlexibleFont();
    if (font && font_.get() != font) {
        font_ = EngineRef<FlexibleFont>::share(font);
        measureDigits(*font);
    }
    return font;
}

double BarWords::measure(const ShortText& text, double height) {
    const FlexibleFont* font = takeFont();
    return font ? font->getDimensionWithTabs(text.c_str(), 1, {1.0f, 1.0f}).Width * height /
                      static_cast<double>(digits_.height)
                : 0.0;
}

void BarWords::draw(const std::vector<BarText>& texts) {
    FlexibleFont* font = takeFont();
    if (!font)
        return;
    drawn_.clear();
    for (const BarText& each : texts) {
        if (std::find(drawn_.begin(), drawn_.end(), each.height) != drawn_.end())
            continue;
        drawn_.push_back(each.height);
        drawHeight(*font, texts, each.height);
    }
}

void BarWords::drawHeight(FlexibleFont& font, const std::vector<BarText>& texts, double height) {
    mesh_->Vertices.set_used(0);
    mesh_->Indices.set_used(0);
    const float scale = static_cast<float>(height) / digits_.height;
    for (const BarText& each : texts)
        if (each.height == height)
            add(font, each, scale);
    FlexibleFont::DrawStyle style;
    style.smoothing = font.getDefaultSmoothingFactor();
    style.fatness = boldness;
    FlexibleFont::Placement placement;
    placement.scale = irr::core::vector2d<float>(scale, scale);
    const irr::core::dimension2d<irr::u32> screen =
        context_->getIrrlichtDevice()->getVideoDriver()->getCurrentRenderTargetSize();
    font.drawFontMeshBuffer(mesh_.get(),
                            rect<int>(0, 0, static_cast<int>(screen.Width), static_cast<int>(screen.Height)), style,
                            placement);
}

/// The mesh holds pixels of the screen divided by the scale that it is drawn with.
void BarWords::add(const FlexibleFont& font, const BarText& text, float scale) {
    const auto size = font.getDimensionWithTabs(text.text.c_str(), 1, {1.0f, 1.0f});
    const float natural = static_cast<float>(size.Width), most = static_cast<float>(text.most) / scale;
    const float squeeze = text.most > 0.0 && natural > most ? most / natural : 1.0f;
    const float alignment = text.align == BarText::Left ? 0.0f : text.align == BarText::Centre ? 0.5f : 1.0f;
    irr::core::matrix4 place;
    place[0] = squeeze;
    place[12] = static_cast<float>(text.place.X) / scale - alignment * squeeze * natural;
    place[13] = static_cast<float>(text.place.Y) / scale - digits_.top - 0.5f * digits_.height;
    const irr::u32 first = mesh_->Vertices.size();
    font.fillMeshBuffer(*mesh_, text.text.c_str(), 1, false, irr::video::SColor(text.argb), 0.0f, &place,
                        font.getDefaultMaterialType(), true, false);
    if (isClipped(text))
        clip(first, rect<float>(static_cast<float>(text.clip.UpperLeftCorner.X) / scale,
                                static_cast<float>(text.clip.UpperLeftCorner.Y) / scale,
                                static_cast<float>(text.clip.LowerRightCorner.X) / scale,
                                static_cast<float>(text.clip.LowerRightCorner.Y) / scale));
}

/// Moves the corners of each glyph to the edge of the clip, and their places in the texture with them.
void BarWords::clip(irr::u32 firstVertex, const rect<float>& clip) {
    const auto bring = [](float& value, float from, float to, float& texture, float textureFrom, float textureTo,
                          float low, float high) {
        const float brought = std::clamp(value, low, high);
        if (to != from)
            texture = textureFrom + (brought - from) / (to - from) * (textureTo - textureFrom);
        value = brought;
    };
    for (irr::u32 i = firstVertex; i + 3 < mesh_->Vertices.size(); i += 4) {
        irr::video::S3DVertex* quad = &mesh_->Vertices[i];
        rect<float> place(quad[0].Pos.X, quad[0].Pos.Y, quad[0].Pos.X, quad[0].Pos.Y);
        rect<float> texture(quad[0].TCoords.X, quad[0].TCoords.Y, quad[0].TCoords.X, quad[0].TCoords.Y);
        for (int corner = 1; corner < 4; ++corner) {
            place.addInternalPoint(quad[corner].Pos.X, quad[corner].Pos.Y);
            texture.addInternalPoint(quad[corner].TCoords.X, quad[corner].TCoords.Y);
        }
        for (int corner = 0; corner < 4; ++corner) {
            bring(quad[corner].Pos.X, place.UpperLeftCorner.X, place.LowerRightCorner.X, quad[corner].TCoords.X,
                  texture.UpperLeftCorner.X, texture.LowerRightCorner.X, clip.UpperLeftCorner.X,
                  clip.LowerRightCorner.X);
            bring(quad[corner].Pos.Y, place.UpperLeftCorner.Y, place.LowerRightCorner.Y, quad[corner].TCoords.Y,
                  texture.UpperLeftCorner.Y, texture.LowerRightCorner.Y, clip.UpperLeftCorner.Y,
                  clip.LowerRightCorner.Y);
        }
    }
}

} // namespace skyvane

#include "gui/font/FlexibleFont.h"

#include "gui/font/FillMeshBufferCharacterCallback.h"
#include "gui/font/TextMeshCache.h"
#include "gui/glyphs/DimensionFinderCallback.h"
#include "gui/glyphs/IterateOverString.h"
#include "gui/glyphs/Smoothing.h"
#include "gui/glyphs/TextMeasure.h"
#include <algorithm>
#include <cwchar>

namespace skyvane {

using irr::core::dimension2d;
using irr::core::matrix4;
using irr::core::rect;
using irr::core::vector2d;
using irr::scene::IMeshBuffer;
using irr::scene::SMeshBuffer;
using irr::video::IVideoDriver;
using irr::video::SColor;

namespace {

constexpr float usualAspectRatio = 1.7777778f;
constexpr float radiansOfDegree = 0.017453292f;

size_t lengthOf(const wchar_t* text) {
    return text ? std::wcslen(text) : 0;
}

bool isEmpty(const rect<irr::s32>& area) {
    return area.getWidth() <= 0 || area.getHeight() <= 0;
}

/// Sets the viewport even where the driver believes that it is set already: a change of the render target moves the
/// real one behind its back.
void forceViewPort(IVideoDriver* driver, const rect<irr::s32>& area) {
    if (driver->getViewPort() == area)
        driver->setViewPort({area.UpperLeftCorner, area.UpperLeftCorner + irr::core::position2di(1, 1)});
    driver->setViewPort(area);
}

vector2d<float> cornerOf(const rect<irr::s32>& area) {
    return {static_cast<float>(area.UpperLeftCorner.X), static_cast<float>(area.UpperLeftCorner.Y)};
}

/// How much smaller a text must be drawn for its place. Below the least share it couldn't be read: then it is cut.
float shareThatFits(irr::u32 width, int room) {
    constexpr float leastShare = 0.5f, clearOfRim = 0.95f;
    if (room <= 0 || width <= static_cast<irr::u32>(room))
        return 1.0f;
    return std::max(leastShare, clearOfRim * static_cast<float>(room) / static_cast<float>(width));
}

/// Where a text of this length starts in a room, left or centred.
int startInRoom(int room, irr::u32 length, bool centered) {
    return centered ? (room - static_cast<int>(length)) / 2 : 0;
}

} // namespace

FlexibleFont::FlexibleFont(FlexibleFontManager* manager, const IFontLoader::Font& definition)
    : manager_(manager), definition_(definition),
      page_(EngineRef<irr::video::ITexture>::share(definition.page)), camera_{usualAspectRatio},
      cache_(std::make_unique<TextMeshCache>()) {}

FlexibleFont::~FlexibleFont() = default;

void FlexibleFont::draw(const irr::core::stringw& text, const rect<irr::s32>& position, SColor color, bool hcenter,
                        bool vcenter, const rect<irr::s32>* clip) {
    if (text.empty())
        return;
    const TextMesh::Look look{tabSize_, italicGradient_, materialType_, hcenter};
    const TextMesh& mesh = cache_->get(*this, text.c_str(), text.size(), look, color);
    const float share = vcenter ? shareThatFits(mesh.getDimension(scale_).Width, position.getWidth()) : 1.0f;
    const vector2d<float> scale = scale_ * share;
    drawAtScale(mesh.getMesh(), mesh.getDimension(scale), scale, position, hcenter, vcenter, clip);
}

unsigned long FlexibleFont::getDrawRebuilds() const {
    return cache_->getRebuilds();
}

dimension2d<irr::u32> FlexibleFont::getDimension(const wchar_t* text) const {
    return getDimensionWithTabs(text, tabSize_, scale_);
}

dimension2d<irr::u32> FlexibleFont::getDimensionWithTabs(const wchar_t* text, int tabSize,
                                                         const vector2d<float>& scale) const {
    return measureText(text, lengthOf(text), tabSize, definition_, scale);
}

irr::s32 FlexibleFont::getCharacterFromPos(const wchar_t* text, irr::s32 pixelX) const {
    const float x = scale_.X > 0.0f ? static_cast<float>(pixelX) / scale_.X : 0.0f;
    return findCharacterAt(text, lengthOf(text), tabSize_, definition_, x);
}

irr::s32 FlexibleFont::getKerningWidth(const wchar_t* thisLetter, const wchar_t* previousLetter) const {
    if (!thisLetter || !previousLetter)
        return 0;
    return irr::core::round32(static_cast<float>(definition_.findKerning(*previousLetter, *thisLetter)) * scale_.X);
}

float FlexibleFont::calculateOptimalScale(const wchar_t* text, const dimension2d<irr::u32>& target, int tabSize) const {
    ++layouts_;
    const auto natural = getDimensionWithTabs(text, tabSize < 0 ? tabSize_ : tabSize, {1.0f, 1.0f});
    return optimalScale(natural, target);
}

void FlexibleFont::fillMeshBuffer(SMeshBuffer& mesh, const wchar_t* text, int tabSize, bool centered, SColor color,
                                  float italicGradient, const matrix4* matrix, irr::video::E_MATERIAL_TYPE material,
                                  bool bilinear, bool recalcBox) const {
    ++layouts_;
    const size_t length = lengthOf(text);
    FillMeshBufferCharacterCallback::Options options{color, italicGradient, matrix, centered, 0};
    if (centered) {
        DimensionFinderCallback finder;
        iterateOverString(text, length, tabSize, definition_, finder);
        options.totalWidth = finder.getWidth();
    }
    FillMeshBufferCharacterCallback filler(mesh, options);
    iterateOverString(text, length, tabSize, definition_, filler);
    setMaterial(mesh.Material, material, bilinear);
    if (recalcBox)
        mesh.recalculateBoundingBox();
    mesh.setDirty();
}

void FlexibleFont::fillMeshBuffer(SMeshBuffer& mesh, const wchar_t* text, SColor color, bool centered) const {
    fillMeshBuffer(mesh, text, tabSize_, centered, color, italicGradient_, nullptr, materialType_);
}

void FlexibleFont::setMaterial(irr::video::SMaterial& material, irr::video::E_MATERIAL_TYPE type, bool bilinear) const {
    material.MaterialType = type;
    material.Lighting = false;
    material.ZWriteEnable = false;
    material.ZBuffer = irr::video::ECFN_NEVER; // which turns the test off
    material.BackfaceCulling = false;
    material.BlendOperation = irr::video::EBO_ADD; // without it the driver may leave blending off
    material.UseMipMaps = false;
    for (irr::video::SMaterialLayer& each : material.TextureLayer)
        each.getTextureMatrix(); // makes one: the driver's copy of the material allocates where it is missing, each
                                 // time
    irr::video::SMaterialLayer& layer = material.TextureLayer[0];
    layer.Texture = page_.get();
    layer.TextureWrapU = irr::video::ETC_CLAMP_TO_EDGE;
    layer.TextureWrapV = irr::video::ETC_CLAMP_TO_EDGE;
    layer.BilinearFilter = bilinear;
    layer.TrilinearFilter = false;
    layer.AnisotropicFilter = 0;
}

FlexibleFont::DrawStyle FlexibleFont::getDefaultStyle() const {
    return {smoothingFactor_, fatness_, borderSize_, borderColor_, &shadow_};
}

void FlexibleFont::drawFontMeshBuffer(const IMeshBuffer* mesh, const dimension2d<irr::u32>& dimension,
                                      const rect<irr::s32>& area, bool hcenter, bool vcenter,
                                      const rect<irr::s32>* clip) {
    drawAtScale(mesh, dimension, scale_, area, hcenter, vcenter, clip);
}

void FlexibleFont::drawAtScale(const IMeshBuffer* mesh, const dimension2d<irr::u32>& dimension,
                               const vector2d<float>& scale, const rect<irr::s32>& area, bool hcenter, bool vcenter,
                               const rect<irr::s32>* clip) {
    if (isEmpty(area))
        return;
    rect<irr::s32> visible = area;
    visible.clipAgainst(manager_->getDevice()->getVideoDriver()->getViewPort());
    if (clip)
        visible.clipAgainst(*clip);
    Placement placement;
    placement.scale = scale;
    placement.translation = cornerOf(area) - cornerOf(visible);
    placement.translation.X += static_cast<float>(startInRoom(area.getWidth(), dimension.Width, hcenter));
    placement.translation.Y += static_cast<float>(startInRoom(area.getHeight(), dimension.Height, vcenter));
    drawFontMeshBuffer(mesh, visible, getDefaultStyle(), placement);
}

void FlexibleFont::drawFontMeshBuffer(const IMeshBuffer* mesh, const rect<irr::s32>& area, float smoothing,
                                      float fatness, float borderSize, SColor borderColor, const Shadow* shadow,
                                      const vector2d<float>& pivot, const vector2d<float>& scale, float rotationDegrees,
                                      const vector2d<float>& translation) {
    drawFontMeshBuffer(mesh, area, DrawStyle{smoothing, fatness, borderSize, borderColor, shadow},
                       Placement{pivot, scale, rotationDegrees, translation});
}

void FlexibleFont::drawFontMeshBuffer(const IMeshBuffer* mesh, const rect<irr::s32>& area, const DrawStyle& style,
                                      const Placement& placement) {
    if (!mesh || mesh->getIndexCount() == 0 || isEmpty(area))
        return;
    IVideoDriver* driver = manager_->getDevice()->getVideoDriver();
    const dimension2d<irr::u32> target = driver->getCurrentRenderTargetSize();
    rect<irr::s32> visible = area; // the driver would cut the viewport at the target, and the pixels with it
    visible.clipAgainst({0, 0, static_cast<irr::s32>(target.Width), static_cast<irr::s32>(target.Height)});
    if (isEmpty(visible))
        return;
    manager_->prepareDraw();
    const rect<irr::s32> viewPortBefore = driver->getViewPort();
    forceViewPort(driver, visible);
    Placement placed = placement;
    placed.translation += cornerOf(area) - cornerOf(visible);
    setTransforms(visible, placed);
    setShaderState(style, placement.scale);
    driver->setMaterial(mesh->getMaterial());
    driver->drawMeshBuffer(mesh);
    driver->setViewPort(viewPortBefore);
    if (autoReset_)
        reset2DTransforms();
}

void FlexibleFont::setTransforms(const rect<irr::s32>& viewPort, const Placement& placement) {
    camera_.setAspectRatio(static_cast<float>(viewPort.getWidth()) / static_cast<float>(viewPort.getHeight()));
    camera_.recalculate();
    const matrix4 world = camera_.createOptimized2DTransform(
        static_cast<irr::u32>(viewPort.getHeight()), placement.pivot, placement.scale,
        placement.rotationDegrees * radiansOfDegree, placement.translation);
    camera_.set2DTransforms(manager_->getDevice(), world);
}

void FlexibleFont::setShaderState(const DrawStyle& style, const vector2d<float>& scale) const {
    manager_->setSmoothing(edgeSmoothing(style.smoothing, scale, style.fatness));
    manager_->setFatness(style.fatness);
    manager_->setBorderSize(style.borderSize);
    manager_->setBorderColor(style.borderColor);
    manager_->setShadow(style.shadow ? *style.shadow : Shadow{{0.0f, 0.0f}, 0.0f, SColor(0)});
}

void FlexibleFont::reset2DTransforms() {
    Camera2DParameterCalculator::reset2DTransforms(manager_->getDevice());
}

} // namespace skyvane

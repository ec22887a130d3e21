#pragma once

#include "core/engine/EngineRef.h"
#include "displays/drawing/Camera2DParameterCalculator.h"
#include "gui/font/FlexibleFontManager.h"
#include "gui/font/IFontLoader.h"
#include <irrlicht.h>
#include <memory>

namespace skyvane {

class TextMeshCache;

/// A font drawn from a signed distance field, sharp at every scale; the toolkit's font interface on top of it.
///
/// Text that changes rarely is a mesh: fill it once with fillMeshBuffer(), draw it each frame with
/// drawFontMeshBuffer(); scale, rotation and place come from the transform. CachedText does both. draw() keeps the
/// meshes of its last texts, so that an unchanged text is neither built again nor allocates.
///
/// Scale, fatness, border, shadow and the like are defaults of the font, applied at each draw: who changes one for a
/// while restores it. Sizes given and asked for are pixels at the default scale unless said otherwise. Made by an
/// IFontLoader, owned by the FlexibleFontManager, which must outlive it. Main thread only.
class FlexibleFont : public irr::gui::IGUIFont {
public:
    using Shadow = FlexibleFontManager::Shadow;

    /// How drawFontMeshBuffer() draws a mesh in its general form.
    struct DrawStyle {
        float smoothing = 1.5f; ///< Width of the edge in pixels of the screen, times two thirds.
        float fatness = 0.5f;
        float borderSize = 0.0f;
        irr::video::SColor borderColor{0xFF000000};
        const Shadow* shadow = nullptr;
    };
    /// Where: `pivot`, a point of the text in pixels at scale 1, lands on `translation`, in pixels from the upper left
    /// corner of the rectangle; positive rotation turns counter-clockwise on the screen about it.
    struct Placement {
        irr::core::vector2d<float> pivot{0.0f, 0.0f};
        irr::core::vector2d<float> scale{1.0f, 1.0f};
        float rotationDegrees = 0.0f;
        irr::core::vector2d<float> translation{0.0f, 0.0f};
    };

    static constexpr unsigned maxCharactersOfMesh = 16384;

    /// Takes a reference to the page.
    FlexibleFont(FlexibleFontManager* manager, const IFontLoader::Font& definition);
    ~FlexibleFont() override;

    // irr::gui::IGUIFont
    /// A text that is centred from top to bottom stands alone, as on a button: where it is too wide it is drawn
    /// smaller, as far as it can be read.
    void draw(const irr::core::stringw& text, const irr::core::rect<irr::s32>& position, irr::video::SColor color,
              bool hcenter = false, bool vcenter = false, const irr::core::rect<irr::s32>* clip = nullptr) override;
    irr::core::dimension2d<irr::u32> getDimension(const wchar_t* text) const override;
    irr::s32 getCharacterFromPos(const wchar_t* text, irr::s32 pixelX) const override;
    irr::gui::EGUI_FONT_TYPE getType() const override { return irr::gui::EGFT_CUSTOM; }
    void setKerningWidth(irr::s32) override {}
    void setKerningHeight(irr::s32) override {}
    irr::s32 getKerningWidth(const wchar_t* thisLetter = nullptr,
                             const wchar_t* previousLetter = nullptr) const override;
    irr::s32 getKerningHeight() const override { return 0; }
    void setInvisibleCharacters(const wchar_t*) override {}

    irr::core::dimension2d<irr::u32> getDimensionWithTabs(const wchar_t* text, int tabSize,
                                                          const irr::core::vector2d<float>& scale) const;
    /// The scale at which the text fills the target, in one axis at least; a negative tab size is the default one.
    float calculateOptimalScale(const wchar_t* text, const irr::core::dimension2d<irr::u32>& target,
                                int tabSize = -1) const;

    /// Appends the text's quads to the caller's mesh and sets its material. Positions are pixels at scale 1, y
    /// downwards, from the upper left corner of the text, then transformed by the matrix if one is given. Characters
    /// beyond the mesh's limit of 16384 are left out. `centered` centres each line in the width of the whole text.
    void fillMeshBuffer(irr::scene::SMeshBuffer& mesh, const wchar_t* text, int tabSize, bool centered,
                        irr::video::SColor color, float italicGradient, const irr::core::matrix4* matrix,
                        irr::video::E_MATERIAL_TYPE material, bool bilinear = true, bool recalcBox = true) const;
    /// The same with the font's tab size, gradient and material.
    void fillMeshBuffer(irr::scene::SMeshBuffer& mesh, const wchar_t* text, irr::video::SColor color,
                        bool centered = false) const;

    /// Draws into a rectangle of the target, left and top or centred by the flags, with the font's defaults; never
    /// beyond the rectangle, the driver's viewport and the clip. `dimension` is that of getDimension().
    void drawFontMeshBuffer(const irr::scene::IMeshBuffer* mesh, const irr::core::dimension2d<irr::u32>& dimension,
                            const irr::core::rect<irr::s32>& rect, bool hcenter, bool vcenter,
                            const irr::core::rect<irr::s32>* clip = nullptr);
    /// The general form: the rectangle becomes the viewport, nothing is drawn outside. An empty one draws nothing.
    void drawFontMeshBuffer(const irr::scene::IMeshBuffer* mesh, const irr::core::rect<irr::s32>& rect, float smoothing,
                            float fatness, float borderSize, irr::video::SColor borderColor, const Shadow* shadow,
                            const irr::core::vector2d<float>& pivot, const irr::core::vector2d<float>& scale,
                            float rotationDegrees, const irr::core::vector2d<float>& translation);
    void drawFontMeshBuffer(const irr::scene::IMeshBuffer* mesh, const irr::core::rect<irr::s32>& rect,
                            const DrawStyle& style, const Placement& placement);
    /// The font's defaults as a style.
    DrawStyle getDefaultStyle() const;

    /// Needed only with auto reset off, when the texts of a panel are drawn.
    void reset2DTransforms();
    void setAutoResetTransformEnabled(bool enabled) { autoReset_ = enabled; }
    bool isAutoResetTransformEnabled() const { return autoReset_; }

    const IFontLoader::Font& getFontDefintion() const { return definition_; }

    void setDefaultTabSize(int tabSize) { tabSize_ = tabSize; }
    int getDefaultTabSize() const { return tabSize_; }
    void setDefaultItalicGradient(float gradient) { italicGradient_ = gradient; }
    float getDefaultItalicGradient() const { return italicGradient_; }
    void setDefaultFatness(float fatness) { fatness_ = fatness; }
    float getDefaultFatness() const { return fatness_; }
    void setDefaultSmoothingFactor(float factor) { smoothingFactor_ = factor; }
    float getDefaultSmoothingFactor() const { return smoothingFactor_; }
    void setDefaultBorderSize(float size) { borderSize_ = size; }
    float getDefaultBorderSize() const { return borderSize_; }
    void setDefaultBorderColor(irr::video::SColor color) { borderColor_ = color; }
    irr::video::SColor getDefaultBorderColor() const { return borderColor_; }
    void setDefaultScale(const irr::core::vector2d<float>& scale) { scale_ = scale; }
    const irr::core::vector2d<float>& getDefaultScale() const { return scale_; }
    void setDefaultShadow(const Shadow& shadow) { shadow_ = shadow; }
    const Shadow& getDefaultShadow() const { return shadow_; }
    void setDefaultMaterialType(irr::video::E_MATERIAL_TYPE type) { materialType_ = type; }
    irr::video::E_MATERIAL_TYPE getDefaultMaterialType() const { return materialType_; }

    /// Meshes built by draw() so far: stands still while the texts stay the same.
    unsigned long getDrawRebuilds() const;
    /// Meshes built and sizes fitted so far, by whomever: stands still while the texts and their places stay the same.
    unsigned long getLayouts() const { return layouts_; }

private:
    void drawAtScale(const irr::scene::IMeshBuffer* mesh, const irr::core::dimension2d<irr::u32>& dimension,
                     const irr::core::vector2d<float>& scale, const irr::core::rect<irr::s32>& rect, bool hcenter,
                     bool vcenter, const irr::core::rect<irr::s32>* clip);
    void setMaterial(irr::video::SMaterial& material, irr::video::E_MATERIAL_TYPE type, bool bilinear) const;
    void setTransforms(const irr::core::rect<irr::s32>& viewPort, const Placement& placement);
    void setShaderState(const DrawStyle& style, const irr::core::vector2d<float>& scale) const;

    FlexibleFontManager* manager_;
    IFontLoader::Font definition_;
    EngineRef<irr::video::ITexture> page_;
    Camera2DParameterCalculator camera_;
    std::unique_ptr<TextMeshCache> cache_;
    irr::core::vector2d<float> scale_{1.0f, 1.0f};
    int tabSize_ = 4;
    float italicGradient_ = 0.0f;
    float fatness_ = 0.5f;
    float smoothingFactor_ = 1.5f;
    float borderSize_ = 0.0f;
    irr::video::SColor borderColor_{0xFF000000};
    Shadow shadow_{{0.0f, 0.0f}, 0.2f, irr::video::SColor(0xFF000000)};
    irr::video::E_MATERIAL_TYPE materialType_ = irr::video::EMT_TRANSPARENT_ALPHA_CHANNEL;
    bool autoReset_ = true;
    mutable unsigned long layouts_ = 0;
};

} // namespace skyvane

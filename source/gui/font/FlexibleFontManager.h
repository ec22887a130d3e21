#pragma once

#include "core/engine/EngineRef.h"
#include <functional>
#include <irrlicht.h>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace skyvane {

class FlexibleFont;
class IFontLoader;
class SDFFCallback;

/// Owns the fonts, their loaders and the two distance field materials, and holds the shader state of the draw in
/// progress.
///
/// Lives as long as the device. Main thread only. Materials are made once, in the constructor; where the driver has no
/// shaders (the null driver), both types are the plain alpha blended one, after a line in the log.
class FlexibleFontManager : public irr::video::IShaderConstantSetCallBack {
public:
    struct Shadow {
        irr::core::vector2d<float> offset{0.0005f, 0.0005f}; ///< Fractions of the page.
        float smoothing = 0.1f;
        irr::video::SColor color{0xFF000000};
    };

    explicit FlexibleFontManager(irr::IrrlichtDevice* device);
    ~FlexibleFontManager() override;

    /// The font of a file, loaded at the first call; null when no loader takes it. Owned by the manager until
    /// removeFont().
    FlexibleFont* getFont(const std::string& path);
    void removeFont(FlexibleFont* font);
    /// Takes a reference of its own.
    void addFontLoader(IFontLoader* loader);

    irr::video::E_MATERIAL_TYPE getSDFFMaterialType() const { return plainType_; }
    irr::video::E_MATERIAL_TYPE getSDFFWithShadowsMaterialType() const { return shadowType_; }
    irr::IrrlichtDevice* getDevice() const { return device_; }

    void setSmoothing(float smoothing) { smoothing_ = smoothing; }
    void setFatness(float fatness) { fatness_ = fatness; }
    void setBorderSize(float size) { borderSize_ = size; }
    void setBorderColor(irr::video::SColor color) { borderColor_ = color; }
    void setShadow(const Shadow& shadow) { shadow_ = shadow; }
    float getSmoothing() const { return smoothing_; }
    float getFatness() const { return fatness_; }
    float getBorderSize() const { return borderSize_; }
    irr::video::SColor getBorderColor() const { return borderColor_; }
    const Shadow& getShadow() const { return shadow_; }

    /// What has to happen before a text is drawn, so that it lies over what was drawn earlier: whoever gathers draws
    /// empties its batch here.
    void setBeforeDraw(std::function<void()> beforeDraw) { beforeDraw_ = std::move(beforeDraw); }
    void prepareDraw() const;

    /// Finds the callback of the material; OnSetConstants() forwards to it.
    void OnSetMaterial(const irr::video::SMaterial& material) override;
    void OnSetConstants(irr::video::IMaterialRendererServices* services, irr::s32 userData) override;

private:
    irr::video::E_MATERIAL_TYPE addMaterial(const char* defines, std::unique_ptr<SDFFCallback> callback);
    EngineRef<FlexibleFont> load(const std::string& path) const;

    irr::IrrlichtDevice* device_;
    std::vector<EngineRef<IFontLoader>> loaders_;
    std::map<std::string, EngineRef<FlexibleFont>> fonts_;
    std::map<int, std::unique_ptr<SDFFCallback>> callbacks_; ///< By material type.
    SDFFCallback* current_ = nullptr;
    irr::video::E_MATERIAL_TYPE plainType_;
    irr::video::E_MATERIAL_TYPE shadowType_;
    float smoothing_ = 0.0625f;
    float fatness_ = 0.5f;
    float borderSize_ = 0.0f;
    irr::video::SColor borderColor_{0xFF000000};
    Shadow shadow_;
    std::function<void()> beforeDraw_;
};

} // namespace skyvane

#pragma once

#include <irrlicht.h>

namespace skyvane {

/// Feeds the material "Terrain2D": a map's picture of heights and slopes (see fillTerrainImage), coloured by a gradient
/// between height limits, shaded by a light that goes round, and warning of ground near the aircraft's altitude.
/// Heights in metres. Owned by the driver; main thread only.
class OGLTerrain2DCB : public irr::video::IShaderConstantSetCallBack {
public:
    /// The mean height changes nothing yet.
    void setHeightLimits(float minimum, float mean, float maximum, float altitude);
    /// x east, y up, z north; the direction in which the light shines.
    void setLightDirection(const irr::core::vector3d<float>& direction) { light_ = direction; }
    /// Sets it to where it is now: a lap in 40 seconds.
    void moveLight();
    /// Of plain ground, and of ground that warns.
    void setAlpha(float normal, float warning);
    /// Of the picture, in pixels.
    void setImageSize(const irr::core::dimension2d<irr::u32>& size);

    void OnSetConstants(irr::video::IMaterialRendererServices* services, irr::s32 userData) override;

private:
    float minimum_ = 0.0f;
    float maximum_ = 1.0f;
    float altitude_ = 0.0f;
    irr::core::vector3d<float> light_{1.0f, -1.0f, 0.0f};
    float normalAlpha_ = 1.0f;
    float warningAlpha_ = 1.0f;
    float imageSize_[2] = {1.0f, 1.0f};
};

} // namespace skyvane

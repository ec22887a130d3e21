#pragma once

#include <irrlicht.h>

namespace skyvane {

/// Feeds the shader that colours terrain by its height and by how far the aircraft is above it:
///
///     callback->setHeightLimits(lowest, mean, highest, altitude);
///     callback->setLightDirection(direction);
///     driver->setMaterial(...); driver->drawMeshBuffer(...);
///
/// All heights in metres; the world matrix lifts nothing and turns nothing. The values hold for the draws that follow.
/// Owned by the driver and MaterialManager.
class OGLES2TerrainCB : public irr::video::IShaderConstantSetCallBack {
public:
    /// The highest is brought above the lowest. What isn't finite changes nothing: an altitude that nobody knows isn't
    /// shown in colours at all.
    void setHeightLimits(float lowest, float mean, float highest, float altitude);
    /// The way that the light goes.
    void setLightDirection(const irr::core::vector3d<float>& direction) { light_ = direction; }
    /// Another mesh covers a square of this one, whose middle is x, z in this mesh's metres: there this one sinks out
    /// of sight. A half side of 0 covers nothing.
    void setCovered(float x, float z, float halfSide, float depth);

    void OnSetMaterial(const irr::video::SMaterial& material) override { thickness_ = material.Thickness; }
    void OnSetConstants(irr::video::IMaterialRendererServices* services, irr::s32 userData) override;

private:
    float thickness_ = 1.0f;
    float altitude_ = 1e6f; ///< Nothing warns.
    float lowest_ = 0.0f;
    float highest_ = 1.0f;
    float covered_[4] = {0.0f, 0.0f, 0.0f, 0.0f};
    irr::core::vector3d<float> light_{0.0f, -1.0f, 0.0f};
};

} // namespace skyvane

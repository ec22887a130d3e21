#pragma once

#include <irrlicht.h>

namespace skyvane {

/// Feeds the shader of aircraft meshes, which has a fixed light: uWVPMatrix, uNMatrix, uThickness, uDiffuseColor and
/// the texture unit. The world matrix scales evenly: its rotation is the normals'. Owned by the driver.
class OGLES2PlaneCB : public irr::video::IShaderConstantSetCallBack {
public:
    void OnSetMaterial(const irr::video::SMaterial& material) override;
    void OnSetConstants(irr::video::IMaterialRendererServices* services, irr::s32 userData) override;

private:
    float thickness_ = 1.0f;
    irr::video::SColorf diffuse_{1.0f, 1.0f, 1.0f, 1.0f};
};

} // namespace skyvane

#pragma once

#include <irrlicht.h>

namespace skyvane {

/// Feeds the shaders of textured and plain vertex colour materials: uWVPMatrix, uThickness, uDiffuseColor and the
/// texture unit. Allocates nothing. Owned by the driver.
class OGLES2SimpleCB : public irr::video::IShaderConstantSetCallBack {
public:
    explicit OGLES2SimpleCB(bool blended) : blended_(blended) {}

    void OnSetMaterial(const irr::video::SMaterial& material) override;
    void OnSetConstants(irr::video::IMaterialRendererServices* services, irr::s32 userData) override;

private:
    bool blended_;
    float thickness_ = 1.0f;
    irr::video::SColorf diffuse_{1.0f, 1.0f, 1.0f, 1.0f};
};

} // namespace skyvane

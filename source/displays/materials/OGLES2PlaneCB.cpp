#include "displays/materials/OGLES2PlaneCB.h"

namespace skyvane {

void OGLES2PlaneCB::OnSetMaterial(const irr::video::SMaterial& material) {
    thickness_ = material.Thickness;
    diffuse_ = irr::video::SColorf(material.DiffuseColor);
}

void OGLES2PlaneCB::OnSetConstants(irr::video::IMaterialRendererServices* services, irr::s32) {
    irr::video::IVideoDriver* driver = services->getVideoDriver();
    const irr::core::matrix4& world = driver->getTransform(irr::video::ETS_WORLD);
    irr::core::matrix4 transform = driver->getTransform(irr::video::ETS_PROJECTION);
    transform *= driver->getTransform(irr::video::ETS_VIEW);
    transform *= world;
    services->setVertexShaderConstant("uWVPMatrix", transform.pointer(), 16);
    services->setVertexShaderConstant("uNMatrix", world.pointer(), 16);
    services->setVertexShaderConstant("uThickness", &thickness_, 1);
    services->setPixelShaderConstant("uDiffuseColor", &diffuse_.r, 4);
    const irr::s32 unit = 0;
    services->setPixelShaderConstant("uTextureUnit0", reinterpret_cast<const irr::f32*>(&unit), 1);
}

} // namespace skyvane

#include "displays/materials/OGLES2PlaneCB.h"

#include "displays/materials/ShaderConstants.h"

namespace skyvane {

void OGLES2PlaneCB::OnSetMaterial(const irr::video::SMaterial& material) {
    thickness_ = material.Thickness;
    diffuse_ = irr::video::SColorf(material.DiffuseColor);
}

void OGLES2PlaneCB::OnSetConstants(irr::video::IMaterialRendererServices* services, irr::s32) {
    const irr::core::matrix4& world = services->getVideoDriver()->getTransform(irr::video::ETS_WORLD);
    setScreenTransform(services);
    services->setVertexShaderConstant("uNMatrix", world.pointer(), 16);
    services->setVertexShaderConstant("uThickness", &thickness_, 1);
    services->setPixelShaderConstant("uDiffuseColor", &diffuse_.r, 4);
    setTextureUnits(services);
}

} // namespace skyvane

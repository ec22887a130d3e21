#define GL_GLEXT_PROTOTYPES
#include "displays/materials/OGLES2SimpleCB.h"

#include <GL/gl.h>
#include <GL/glext.h>

namespace skyvane {

void OGLES2SimpleCB::OnSetMaterial(const irr::video::SMaterial& material) {
    thickness_ = material.Thickness;
    diffuse_ = irr::video::SColorf(material.DiffuseColor);
}

void OGLES2SimpleCB::OnSetConstants(irr::video::IMaterialRendererServices* services, irr::s32) {
    irr::video::IVideoDriver* driver = services->getVideoDriver();
    irr::core::matrix4 transform = driver->getTransform(irr::video::ETS_PROJECTION);
    transform *= driver->getTransform(irr::video::ETS_VIEW);
    transform *= driver->getTransform(irr::video::ETS_WORLD);
    services->setVertexShaderConstant("uWVPMatrix", transform.pointer(), 16);
    services->setVertexShaderConstant("uThickness", &thickness_, 1);
    services->setPixelShaderConstant("uDiffuseColor", &diffuse_.r, 4);
    const irr::s32 unit = 0;
    services->setPixelShaderConstant("uTextureUnit0", reinterpret_cast<const irr::f32*>(&unit), 1);
    // The engine's blending leaves too little alpha in a render target. The colour's factors are the ones that it has
    // set itself, so its own record of them stays true.
    if (blended_)
        glBlendFuncSeparate(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA, GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
}

} // namespace skyvane

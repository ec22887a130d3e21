#define GL_GLEXT_PROTOTYPES
#include "displays/materials/OGLES2SimpleCB.h"

#include "displays/materials/ShaderConstants.h"

#include <GL/gl.h>
#include <GL/glext.h>

namespace skyvane {

void OGLES2SimpleCB::OnSetMaterial(const irr::video::SMaterial& material) {
    thickness_ = material.Thickness;
    diffuse_ = irr::video::SColorf(material.DiffuseColor);
}

void OGLES2SimpleCB::OnSetConstants(irr::video::IMaterialRendererServices* services, irr::s32) {
    setScreenTransform(services);
    services->setVertexShaderConstant("uThickness", &thickness_, 1);
    services->setPixelShaderConstant("uDiffuseColor", &diffuse_.r, 4);
    setTextureUnits(services);
    // The engine's blending leaves too little alpha in a render target. The colour's factors are the ones that it has
    // set itself, so its own record of them stays true.
    if (blended_)
        glBlendFuncSeparate(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA, GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
}

} // namespace skyvane

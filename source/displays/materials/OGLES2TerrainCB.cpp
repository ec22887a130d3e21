#include "displays/materials/OGLES2TerrainCB.h"

#include "displays/materials/ShaderConstants.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

void OGLES2TerrainCB::setHeightLimits(float lowest, float mean, float highest, float altitude) {
    if (!std::isfinite(lowest) || !std::isfinite(mean) || !std::isfinite(highest) || !std::isfinite(altitude))
        return;
    lowest_ = lowest;
    highest_ = std::max(highest, lowest + 1.0f);
    altitude_ = altitude;
}

void OGLES2TerrainCB::setCovered(float x, float z, float halfSide, float depth) {
    covered_[0] = x;
    covered_[1] = z;
    covered_[2] = halfSide;
    covered_[3] = depth;
}

void OGLES2TerrainCB::OnSetConstants(irr::video::IMaterialRendererServices* services, irr::s32) {
    const irr::core::matrix4& world = services->getVideoDriver()->getTransform(irr::video::ETS_WORLD);
    setScreenTransform(services);
    services->setVertexShaderConstant("uWMatrix", world.pointer(), 16);
    services->setVertexShaderConstant("uNMatrix", world.pointer(), 16); // it turns nothing: normals stay
    services->setVertexShaderConstant("uThickness", &thickness_, 1);
    services->setVertexShaderConstant("uCovered", covered_, 4);
    services->setPixelShaderConstant("uAltitude", &altitude_, 1);
    services->setPixelShaderConstant("uMinH", &lowest_, 1);
    services->setPixelShaderConstant("uMaxH", &highest_, 1);
    services->setPixelShaderConstant("lightDir", &light_.X, 3);
    setTextureUnits(services);
}

} // namespace skyvane

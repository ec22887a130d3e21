#include "displays/materials/OGLES2TerrainCB.h"

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
    irr::video::IVideoDriver* driver = services->getVideoDriver();
    const irr::core::matrix4& world = driver->getTransform(irr::video::ETS_WORLD);
    irr::core::matrix4 transform = driver->getTransform(irr::video::ETS_PROJECTION);
    transform *= driver->getTransform(irr::video::ETS_VIEW);
    transform *= world;
    services->setVertexShaderConstant("uWVPMatrix", transform.pointer(), 16);
    services->setVertexShaderConstant("uWMatrix", world.pointer(), 16);
    services->setVertexShaderConstant("uNMatrix", world.pointer(), 16); // it turns nothing: normals stay
    services->setVertexShaderConstant("uThickness", &thickness_, 1);
    services->setVertexShaderConstant("uCovered", covered_, 4);
    services->setPixelShaderConstant("uAltitude", &altitude_, 1);
    services->setPixelShaderConstant("uMinH", &lowest_, 1);
    services->setPixelShaderConstant("uMaxH", &highest_, 1);
    services->setPixelShaderConstant("lightDir", &light_.X, 3);
    const irr::s32 unit = 0;
    services->setPixelShaderConstant("uTextureUnit0", reinterpret_cast<const irr::f32*>(&unit), 1);
}

} // namespace skyvane

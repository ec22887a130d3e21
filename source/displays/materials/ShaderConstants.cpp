#include "displays/materials/ShaderConstants.h"

namespace skyvane {

void setScreenTransform(irr::video::IMaterialRendererServices* services) {
    irr::video::IVideoDriver* driver = services->getVideoDriver();
    irr::core::matrix4 transform = driver->getTransform(irr::video::ETS_PROJECTION);
    transform *= driver->getTransform(irr::video::ETS_VIEW);
    transform *= driver->getTransform(irr::video::ETS_WORLD);
    services->setVertexShaderConstant("uWVPMatrix", transform.pointer(), 16);
}

void setTextureUnits(irr::video::IMaterialRendererServices* services, int count) {
    constexpr const char* names[] = {"uTextureUnit0", "uTextureUnit1"};
    for (irr::s32 unit = 0; unit < count; ++unit)
        services->setPixelShaderConstant(names[unit], &unit, 1);
}

} // namespace skyvane

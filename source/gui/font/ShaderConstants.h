#pragma once

#include <irrlicht.h>

namespace skyvane {

/// Fragment shader uniforms by name.
inline void sendFloat(irr::video::IMaterialRendererServices* services, const char* name, float value) {
    services->setPixelShaderConstant(name, &value, 1);
}

/// As four floats from 0 to 1: red, green, blue, alpha.
inline void sendColor(irr::video::IMaterialRendererServices* services, const char* name, irr::video::SColor color) {
    const irr::video::SColorf parts(color);
    services->setPixelShaderConstant(name, &parts.r, 4);
}

} // namespace skyvane

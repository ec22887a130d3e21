#pragma once

#include <irrlicht.h>

namespace skyvane {

/// Constants that the shaders of most materials have. For OnSetConstants().

/// From the model's places to the screen, as the driver's transforms stand: "uWVPMatrix".
void setScreenTransform(irr::video::IMaterialRendererServices* services);
/// The first textures of the material: "uTextureUnit0" and, for two, "uTextureUnit1".
void setTextureUnits(irr::video::IMaterialRendererServices* services, int count = 1);

} // namespace skyvane

#include "gui/font/SDFFWithShadowsCallback.h"

#include "gui/font/FlexibleFontManager.h"
#include "gui/font/ShaderConstants.h"

namespace skyvane {

void SDFFWithShadowsCallback::OnSetConstants(irr::video::IMaterialRendererServices* services) {
    SDFFCallback::OnSetConstants(services);
    const FlexibleFontManager::Shadow& shadow = manager_.getShadow();
    const float offset[] = {shadow.offset.X, shadow.offset.Y};
    services->setPixelShaderConstant("uShadowOffset", offset, 2);
    sendFloat(services, "uShadowSmoothing", shadow.smoothing);
    sendColor(services, "uShadowColor", shadow.color);
}

} // namespace skyvane

#define GL_GLEXT_PROTOTYPES
#include "gui/font/SDFFCallback.h"

#include "gui/font/FlexibleFontManager.h"
#include "gui/font/ShaderConstants.h"
#include <GL/gl.h>
#include <GL/glext.h>

namespace skyvane {

namespace {

constexpr float noBorder = -1.0f;

/// The product of projection, view and world.
void sendTransform(irr::video::IMaterialRendererServices* services) {
    const irr::video::IVideoDriver* driver = services->getVideoDriver();
    irr::core::matrix4 transform = driver->getTransform(irr::video::ETS_PROJECTION);
    transform *= driver->getTransform(irr::video::ETS_VIEW);
    transform *= driver->getTransform(irr::video::ETS_WORLD);
    services->setVertexShaderConstant("uWVPMatrix", transform.pointer(), 16);
}

} // namespace

void SDFFCallback::OnSetConstants(irr::video::IMaterialRendererServices* services) {
    sendTransform(services);
    const irr::s32 textureUnit = 0;
    services->setPixelShaderConstant("uTextureUnit0", &textureUnit, 1);
    sendFloat(services, "uSmoothing", manager_.getSmoothing());
    sendFloat(services, "uFatness", manager_.getFatness());
    sendFloat(services, "uBorderSize", manager_.getBorderSize() == 0.0f ? noBorder : manager_.getBorderSize());
    sendColor(services, "uBorderColor", manager_.getBorderColor());
    // Text in a render target has to leave its own coverage in the target's alpha; in a window it makes no difference.
    glBlendFuncSeparate(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA, GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
}

} // namespace skyvane

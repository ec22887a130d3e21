#define GL_GLEXT_PROTOTYPES
#include "gui/font/SDFFCallback.h"

#include "gui/font/FlexibleFontManager.h"
#include <GL/gl.h>
#include <GL/glext.h>

namespace skyvane {

namespace {

constexpr float noBorder = -1.0f;

} // namespace

void SDFFCallback::OnSetConstants(irr::video::IMaterialRendererServices* services) {
    if (!found_) {
        GLint program = 0;
        glGetIntegerv(GL_CURRENT_PROGRAM, &program);
        findLocations(static_cast<unsigned>(program));
        found_ = true;
    }
    sendTransform(*services->getVideoDriver());
    sendConstants();
    // Text in a render target has to leave its own coverage in the target's alpha; in a window it makes no difference.
    glBlendFuncSeparate(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA, GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
}

void SDFFCallback::findLocations(unsigned program) {
    transform_ = glGetUniformLocation(program, "uWVPMatrix");
    textureUnit_ = glGetUniformLocation(program, "uTextureUnit0");
    smoothing_ = glGetUniformLocation(program, "uSmoothing");
    fatness_ = glGetUniformLocation(program, "uFatness");
    borderSize_ = glGetUniformLocation(program, "uBorderSize");
    borderColor_ = glGetUniformLocation(program, "uBorderColor");
}

void SDFFCallback::sendTransform(const irr::video::IVideoDriver& driver) const {
    irr::core::matrix4 product = driver.getTransform(irr::video::ETS_PROJECTION);
    product *= driver.getTransform(irr::video::ETS_VIEW);
    product *= driver.getTransform(irr::video::ETS_WORLD);
    glUniformMatrix4fv(transform_, 1, GL_FALSE, product.pointer());
}

void SDFFCallback::sendConstants() const {
    glUniform1i(textureUnit_, 0);
    glUniform1f(smoothing_, manager_.getSmoothing());
    glUniform1f(fatness_, manager_.getFatness());
    glUniform1f(borderSize_, manager_.getBorderSize() == 0.0f ? noBorder : manager_.getBorderSize());
    sendColor(borderColor_, manager_.getBorderColor());
}

void SDFFCallback::sendColor(int location, irr::video::SColor color) {
    const irr::video::SColorf parts(color);
    glUniform4f(location, parts.r, parts.g, parts.b, parts.a);
}

} // namespace skyvane

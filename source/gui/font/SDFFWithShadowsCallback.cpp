#define GL_GLEXT_PROTOTYPES
#include "gui/font/SDFFWithShadowsCallback.h"

#include "gui/font/FlexibleFontManager.h"
#include <GL/gl.h>
#include <GL/glext.h>
#include <algorithm>

namespace skyvane {

void SDFFWithShadowsCallback::findLocations(unsigned program) {
    SDFFCallback::findLocations(program);
    shadowOffset_ = glGetUniformLocation(program, "uShadowOffset");
    shadowSmoothing_ = glGetUniformLocation(program, "uShadowSmoothing");
    shadowColor_ = glGetUniformLocation(program, "uShadowColor");
}

void SDFFWithShadowsCallback::sendConstants() const {
    constexpr float sharpest = 1e-4f; // the shader divides by it
    SDFFCallback::sendConstants();
    const FlexibleFontManager::Shadow& shadow = manager_.getShadow();
    glUniform2f(shadowOffset_, shadow.offset.X, shadow.offset.Y);
    glUniform1f(shadowSmoothing_, std::max(shadow.smoothing, sharpest));
    sendColor(shadowColor_, shadow.color);
}

} // namespace skyvane

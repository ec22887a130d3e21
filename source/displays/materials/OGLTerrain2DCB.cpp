#define GL_GLEXT_PROTOTYPES
#include "displays/materials/OGLTerrain2DCB.h"

#include "displays/materials/ShaderConstants.h"

#include "core/time/Time.h"

#include <GL/gl.h>
#include <GL/glext.h>
#include <cmath>

namespace skyvane {
namespace {

constexpr double lightSpeed = 0.1570796327; // radians a second
/// The shader counts heights in what a byte holds.
constexpr float unitMetres = 255.0f;

} // namespace

void OGLTerrain2DCB::setHeightLimits(float minimum, float, float maximum, float altitude) {
    minimum_ = minimum / unitMetres;
    maximum_ = maximum / unitMetres;
    altitude_ = altitude / unitMetres;
}

void OGLTerrain2DCB::moveLight() {
    const double angle = lightSpeed * std::fmod(Secs(), 4000.0);
    light_.set(static_cast<float>(std::cos(angle)), -1.0f, static_cast<float>(std::sin(angle)));
}

void OGLTerrain2DCB::setAlpha(float normal, float warning) {
    normalAlpha_ = normal;
    warningAlpha_ = warning;
}

void OGLTerrain2DCB::setImageSize(const irr::core::dimension2d<irr::u32>& size) {
    imageSize_[0] = static_cast<float>(size.Width);
    imageSize_[1] = static_cast<float>(size.Height);
}

void OGLTerrain2DCB::OnSetConstants(irr::video::IMaterialRendererServices* services, irr::s32) {
    setScreenTransform(services);
    services->setPixelShaderConstant("uMinH", &minimum_, 1);
    services->setPixelShaderConstant("uMaxH", &maximum_, 1);
    services->setPixelShaderConstant("uAltitude", &altitude_, 1);
    services->setPixelShaderConstant("lightDir", &light_.X, 3);
    services->setPixelShaderConstant("uNormalAlpha", &normalAlpha_, 1);
    services->setPixelShaderConstant("uWarnAlpha", &warningAlpha_, 1);
    services->setPixelShaderConstant("uImageSize", imageSize_, 2);
    setTextureUnits(services, 2);
    glBlendFuncSeparate(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA, GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
}

} // namespace skyvane

#include "displays/drawing/Camera2DParameterCalculator.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

using irr::core::matrix4;
using irr::core::vector2d;

Camera2DParameterCalculator::Camera2DParameterCalculator(float aspectRatio, float screenHeight, float nearDistance,
                                                         float farDistance)
    : aspectRatio_(aspectRatio), screen_{aspectRatio * screenHeight, screenHeight, nearDistance, farDistance} {
    recalculate();
}

void Camera2DParameterCalculator::setAspectRatio(float aspectRatio) {
    if (!(aspectRatio > 0.0f) || !std::isfinite(aspectRatio) || aspectRatio == aspectRatio_)
        return;
    aspectRatio_ = aspectRatio;
    dirty_ = true;
}

void Camera2DParameterCalculator::recalculate() {
    if (!dirty_)
        return;
    dirty_ = false;
    screen_.width = aspectRatio_ * screen_.height;
    const float depth = screen_.farDistance - screen_.nearDistance;
    projection_.makeIdentity();
    projection_[0] = 2.0f / screen_.width;
    projection_[5] = 2.0f / screen_.height;
    projection_[10] = 2.0f / depth;
    projection_[14] = -(screen_.farDistance + screen_.nearDistance) / depth;
    // From the upper left corner, downwards, to the middle, upwards.
    view_.makeIdentity();
    view_[5] = -1.0f;
    view_[12] = -0.5f * screen_.width;
    view_[13] = 0.5f * screen_.height;
}

float Camera2DParameterCalculator::getRecommendedInverseProjectionDistance() const {
    return 0.5f * (screen_.nearDistance + screen_.farDistance);
}

matrix4 Camera2DParameterCalculator::createOptimized2DTransform(irr::u32 viewportHeight, const vector2d<float>& pivot,
                                                                const vector2d<float>& scale, float rotationRadians,
                                                                const vector2d<float>& translation) const {
    const float unit = screen_.height / static_cast<float>(std::max(1u, viewportHeight));
    const float cosine = std::cos(rotationRadians);
    const float sine = std::sin(rotationRadians);
    matrix4 world;
    world[0] = unit * cosine * scale.X;
    world[1] = -unit * sine * scale.X;
    world[4] = unit * sine * scale.Y;
    world[5] = unit * cosine * scale.Y;
    world[12] = unit * translation.X - world[0] * pivot.X - world[4] * pivot.Y;
    world[13] = unit * translation.Y - world[1] * pivot.X - world[5] * pivot.Y;
    return world;
}

void Camera2DParameterCalculator::set2DTransforms(irr::IrrlichtDevice* device, const matrix4& world) const {
    irr::video::IVideoDriver* driver = device->getVideoDriver();
    driver->setTransform(irr::video::ETS_PROJECTION, projection_);
    driver->setTransform(irr::video::ETS_VIEW, view_);
    driver->setTransform(irr::video::ETS_WORLD, world);
}

void Camera2DParameterCalculator::reset2DTransforms(irr::IrrlichtDevice* device) {
    irr::video::IVideoDriver* driver = device->getVideoDriver();
    driver->setTransform(irr::video::ETS_PROJECTION, irr::core::IdentityMatrix);
    driver->setTransform(irr::video::ETS_VIEW, irr::core::IdentityMatrix);
    driver->setTransform(irr::video::ETS_WORLD, irr::core::IdentityMatrix);
}

} // namespace skyvane

#pragma once

#include <irrlicht.h>

namespace skyvane {

/// A camera and a projection in which 2-D coordinates are exact pixels of the current viewport, also under rotation.
///
/// Pixels count from the upper left corner of the viewport, x to the right, y downwards; whole numbers are the edges
/// between pixels. The way from there to the screen has three steps:
/// createOptimized2DTransform() (world: pivot, scale, rotation, translation, then pixels to screen heights),
/// getViewMatrix() (screen heights, from the upper left corner, to the camera's axes) and getProjectionMatrix()
/// (orthographic, without a translation, which the OpenGL driver would mirror).
///
///     camera.setAspectRatio(float(width) / height);
///     camera.recalculate();
///     camera.set2DTransforms(device, camera.createOptimized2DTransform(height, pivot, scale, angle, position));
///     driver->drawMeshBuffer(mesh);
///     camera.reset2DTransforms(device);
class Camera2DParameterCalculator {
public:
    /// Where the screen lies in front of the camera, in the units of the view.
    struct CameraScreenParameters {
        float width;
        float height;
        float nearDistance;
        float farDistance;
    };

    /// Aspect ratio (width to height), height of the screen in view units, and the range of depth that is drawn.
    Camera2DParameterCalculator(float aspectRatio, float screenHeight = 1.0f, float nearDistance = -1.0f,
                                float farDistance = 1.0f);

    /// Takes effect with recalculate(). Ratios that aren't positive numbers are ignored.
    void setAspectRatio(float aspectRatio);
    /// Cheap when nothing has changed.
    void recalculate();

    const CameraScreenParameters& getCameraScreenParameters() const { return screen_; }
    const irr::core::matrix4& getProjectionMatrix() const { return projection_; }
    const irr::core::matrix4& getViewMatrix() const { return view_; }
    /// The depth at which a point of the screen is best projected back: the middle of the range.
    float getRecommendedInverseProjectionDistance() const;

    /// The world matrix for things measured in pixels, in a viewport of this height: `pivot` lands on `translation`,
    /// and positive rotation (radians) turns counter-clockwise on the screen about it.
    irr::core::matrix4 createOptimized2DTransform(irr::u32 viewportHeight, const irr::core::vector2d<float>& pivot,
                                                  const irr::core::vector2d<float>& scale, float rotationRadians,
                                                  const irr::core::vector2d<float>& translation) const;

    /// Sets projection, view and this world matrix in the device's driver.
    void set2DTransforms(irr::IrrlichtDevice* device, const irr::core::matrix4& world) const;
    /// Leaves identity in all three.
    static void reset2DTransforms(irr::IrrlichtDevice* device);

private:
    float aspectRatio_;
    CameraScreenParameters screen_;
    irr::core::matrix4 projection_;
    irr::core::matrix4 view_;
    bool dirty_ = true;
};

} // namespace skyvane

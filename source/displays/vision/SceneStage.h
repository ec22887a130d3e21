#pragma once

#include "displays/visionmath/Lens.h"

#include <irrlicht.h>

namespace skyvane {

/// Draws meshes as an eye sees them, in a part of the screen. Scene coordinates: metres from the scene's origin, x
/// east, y up from sea level, z north.
///
///     stage.begin(pose, seen);
///     stage.setPlace(offset);
///     stage.draw(buffer, material);
///     stage.end();
///
/// Allocates nothing. Main thread only.
class SceneStage {
public:
    explicit SceneStage(irr::video::IVideoDriver* driver) : driver_(driver) {}

    /// `seen` is the panel's part of the target; the depth buffer is cleared.
    void begin(const ViewPose& pose, const irr::core::rect<int>& seen);
    /// The viewport and the transforms are those of before.
    void end();

    /// What is drawn next is moved by that, and neither turned nor scaled.
    void setPlace(const irr::core::vector3d<double>& place);
    void setWorld(const irr::core::matrix4& world) { driver_->setTransform(irr::video::ETS_WORLD, world); }
    void draw(const irr::scene::IMeshBuffer* buffer, const irr::video::SMaterial& material);

    const ViewPose& getPose() const { return pose_; }
    const Lens& getLens() const { return lens_; }
    irr::video::IVideoDriver* getDriver() const { return driver_; }

    /// How far the scene reaches.
    static constexpr float farMetres = 320000.0f;

private:
    irr::video::IVideoDriver* driver_;
    ViewPose pose_;
    Lens lens_{1, 1};
    irr::core::rect<int> formerViewPort_;
};

/// Opaque, behind what is nearer, in that type; the white texture of the program where `texture` is null.
irr::video::SMaterial makeSceneMaterial(irr::video::IVideoDriver* driver, irr::video::E_MATERIAL_TYPE type,
                                        irr::video::ITexture* texture = nullptr);

} // namespace skyvane

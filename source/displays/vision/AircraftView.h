#pragma once

#include "core/engine/EngineRef.h"

#include <irrlicht.h>

namespace skyvane {

class Context;
class Matrix3x3;
class SceneStage;

/// A mesh of a file, in the material of aircraft: vertex colours under a fixed light.
class AircraftView {
public:
    AircraftView(Context* context, const char* path, irr::video::ITexture* texture = nullptr);

    /// Metres of the scene; `size` scales the mesh, whose wings span 1. The tint multiplies its colours.
    void draw(SceneStage& stage, const irr::core::vector3d<double>& place, const Matrix3x3& attitude, double size,
              irr::video::SColor tint);

private:
    EngineRef<irr::scene::IMesh> mesh_;
    irr::video::SMaterial material_;
};

} // namespace skyvane

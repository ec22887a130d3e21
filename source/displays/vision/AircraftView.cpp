#include "displays/vision/AircraftView.h"

#include "attitude/math/Matrix3x3.h"
#include "core/Context.h"
#include "core/log/Logger.h"
#include "displays/PanelManager.h"
#include "displays/materials/MaterialManager.h"
#include "displays/vision/SceneStage.h"

namespace skyvane {
namespace {

/// Columns of the attitude are the axes of the body; rows of the engine's matrix are.
irr::core::matrix4 worldOf(const irr::core::vector3d<double>& place, const Matrix3x3& attitude, double size) {
    irr::core::matrix4 world;
    for (int axis = 0; axis < 3; ++axis)
        for (int i = 0; i < 3; ++i)
            world(axis, i) = static_cast<float>(attitude(i, axis) * size);
    world.setTranslation(
        irr::core::vector3df(static_cast<float>(place.X), static_cast<float>(place.Y), static_cast<float>(place.Z)));
    return world;
}

} // namespace

AircraftView::AircraftView(Context* context, const char* path, irr::video::ITexture* texture)
    : mesh_(EngineRef<irr::scene::IMesh>::share(
          context->getPanelManager()->getMeshHWMapped(context->getPath(path).c_str()))),
      material_(makeSceneMaterial(context->getIrrlichtDevice()->getVideoDriver(),
                                  context->getMaterialManager()->getMaterialType("Aircraft"), texture)) {
    if (!mesh_)
        logText(std::string("A scene lacks its mesh ") + path + ".\n");
}

void AircraftView::draw(SceneStage& stage, const irr::core::vector3d<double>& place, const Matrix3x3& attitude,
                        double size, irr::video::SColor tint) {
    if (!mesh_)
        return;
    material_.DiffuseColor = tint;
    stage.setWorld(worldOf(place, attitude, size));
    for (irr::u32 i = 0; i < mesh_->getMeshBufferCount(); ++i)
        stage.draw(mesh_->getMeshBuffer(i), material_);
}

} // namespace skyvane

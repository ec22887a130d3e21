#include "displays/vision/SceneStage.h"

#include "displays/drawing/TriangleBatch.h"

namespace skyvane {
namespace {

using irr::core::matrix4;

constexpr float nearMetres = 3.0f;

matrix4 viewOf(const ViewPose& pose) {
    matrix4 view;
    const ViewPose::Vector axes[] = {pose.right, pose.up, pose.forward};
    for (int column = 0; column < 3; ++column) {
        const ViewPose::Vector& axis = axes[column];
        view(0, column) = static_cast<float>(axis.X);
        view(1, column) = static_cast<float>(axis.Y);
        view(2, column) = static_cast<float>(axis.Z);
        view(3, column) = static_cast<float>(-axis.dotProduct(pose.position));
    }
    return view;
}

/// With the whole range of depth that OpenGL has.
matrix4 projectionOf(const Lens& lens) {
    constexpr float zNear = nearMetres, zFar = SceneStage::farMetres;
    matrix4 projection(matrix4::EM4CONST_NOTHING);
    for (int i = 0; i < 16; ++i)
        projection[i] = 0.0f;
    projection[0] = static_cast<float>(2.0 * lens.focalPixels / lens.width);
    projection[5] = static_cast<float>(2.0 * lens.focalPixels / lens.height);
    projection[10] = (zFar + zNear) / (zFar - zNear);
    projection[11] = 1.0f;
    projection[14] = -2.0f * zFar * zNear / (zFar - zNear);
    return projection;
}

} // namespace

void SceneStage::begin(const ViewPose& pose, const irr::core::rect<int>& seen) {
    pose_ = pose;
    lens_ = Lens(seen.getWidth(), seen.getHeight());
    formerViewPort_ = driver_->getViewPort();
    driver_->setViewPort(seen);
    driver_->setTransform(irr::video::ETS_PROJECTION, projectionOf(lens_));
    driver_->setTransform(irr::video::ETS_VIEW, viewOf(pose));
    driver_->clearZBuffer();
}

void SceneStage::end() {
    for (const auto kind : {irr::video::ETS_PROJECTION, irr::video::ETS_VIEW, irr::video::ETS_WORLD})
        driver_->setTransform(kind, irr::core::IdentityMatrix);
    driver_->setViewPort(formerViewPort_);
}

void SceneStage::setPlace(const irr::core::vector3d<double>& place) {
    matrix4 world;
    world.setTranslation(
        irr::core::vector3df(static_cast<float>(place.X), static_cast<float>(place.Y), static_cast<float>(place.Z)));
    setWorld(world);
}

void SceneStage::draw(const irr::scene::IMeshBuffer* buffer, const irr::video::SMaterial& material) {
    driver_->setMaterial(material);
    driver_->drawMeshBuffer(buffer);
}

irr::video::SMaterial makeSceneMaterial(irr::video::IVideoDriver* driver, irr::video::E_MATERIAL_TYPE type,
                                        irr::video::ITexture* texture) {
    irr::video::SMaterial material;
    material.MaterialType = type;
    material.Lighting = false;
    material.BackfaceCulling = false;
    material.FogEnable = false;
    material.AntiAliasing = irr::video::EAAM_OFF;
    material.BlendOperation = irr::video::EBO_ADD;
    irr::video::SMaterialLayer& layer = material.TextureLayer[0];
    layer.TextureWrapU = layer.TextureWrapV = irr::video::ETC_CLAMP_TO_EDGE;
    // The driver makes the texture matrices that a material lacks anew at each draw.
    for (irr::u32 i = 0; i < irr::video::MATERIAL_MAX_TEXTURES; ++i)
        material.getTextureMatrix(i).makeIdentity();
    material.setTexture(0, texture ? texture : TriangleBatch(driver).white());
    return material;
}

} // namespace skyvane

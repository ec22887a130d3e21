#include "displays/drawing/Camera2DParameterCalculator.h"
#include "support/GlDevice.h"
#include <gtest/gtest.h>

namespace skyvane {

namespace {

using irr::core::vector2d;
using irr::core::vector3df;

/// Where a point in pixels lands in a viewport, in pixels again.
vector2d<float> project(const Camera2DParameterCalculator& camera, const irr::core::matrix4& world, float width,
                        float height, const vector2d<float>& point) {
    vector3df position(point.X, point.Y, 0.0f);
    world.transformVect(position);
    camera.getViewMatrix().transformVect(position);
    camera.getProjectionMatrix().transformVect(position);
    return {(position.X + 1.0f) * 0.5f * width, (1.0f - position.Y) * 0.5f * height};
}

struct Case {
    float width, height;
    vector2d<float> pivot, scale;
    float angle;
    vector2d<float> translation;
};

} // namespace

TEST(Camera2D, pixelsLandOnPixelsUnderEveryTransform) {
    const vector2d<float> one(1.0f, 1.0f), none(0.0f, 0.0f);
    for (const Case& c :
         {Case{1280, 720, none, one, 0.0f, none}, Case{300, 900, none, {2.0f, 0.5f}, 0.0f, {7, 9}},
          Case{1920, 1080, {10, 20}, {3.0f, 2.0f}, 0.7f, {500, 400}}, Case{17, 4000, {-5, 3}, one, -2.0f, {1, 3999}}}) {
        Camera2DParameterCalculator camera(1.7777778f);
        camera.setAspectRatio(c.width / c.height);
        camera.recalculate();
        const auto world = camera.createOptimized2DTransform(static_cast<irr::u32>(c.height), c.pivot, c.scale, c.angle,
                                                             c.translation);
        for (const vector2d<float>& point : {none, vector2d<float>(100, 0), vector2d<float>(33, 77)}) {
            const auto got = project(camera, world, c.width, c.height, point);
            const float x = (point.X - c.pivot.X) * c.scale.X;
            const float y = (point.Y - c.pivot.Y) * c.scale.Y;
            // Counter-clockwise on a screen whose y points down.
            EXPECT_NEAR(got.X, c.translation.X + std::cos(c.angle) * x + std::sin(c.angle) * y, 1e-2f);
            EXPECT_NEAR(got.Y, c.translation.Y - std::sin(c.angle) * x + std::cos(c.angle) * y, 1e-2f);
        }
    }
}

TEST(Camera2D, ignoresWhatIsNoRatio) {
    Camera2DParameterCalculator camera(2.0f);
    for (const float wrong : {0.0f, -1.0f, NAN, INFINITY})
        camera.setAspectRatio(wrong);
    camera.recalculate();
    EXPECT_FLOAT_EQ(camera.getCameraScreenParameters().width, 2.0f);
    EXPECT_FLOAT_EQ(camera.getCameraScreenParameters().height, 1.0f);
    EXPECT_FLOAT_EQ(camera.getRecommendedInverseProjectionDistance(), 0.0f);
}

/// The fixed function pipeline too, which mirrors a translation in the projection.
TEST(Camera2D, fillsExactlyThePixelsOfARectangle) {
    GlDevice gl(101, 67);
    if (!gl)
        GTEST_SKIP() << "no display";
    irr::scene::SMeshBuffer quad;
    for (const auto& [x, y] : {std::pair(13.0f, 11.0f), {13.0f, 31.0f}, {57.0f, 11.0f}, {57.0f, 31.0f}})
        quad.Vertices.push_back(irr::video::S3DVertex(x, y, 0, 0, 0, -1, irr::video::SColor(0xffffffff), 0, 0));
    for (const int index : {0, 1, 2, 2, 1, 3})
        quad.Indices.push_back(static_cast<irr::u16>(index));
    quad.Material.Lighting = false;
    quad.Material.ZBuffer = irr::video::ECFN_NEVER;
    quad.Material.BackfaceCulling = false;
    Camera2DParameterCalculator camera(1.0f);
    camera.setAspectRatio(101.0f / 67.0f);
    camera.recalculate();
    gl.begin();
    camera.set2DTransforms(gl.device(), camera.createOptimized2DTransform(67, {0, 0}, {1, 1}, 0.0f, {0, 0}));
    gl.driver()->setMaterial(quad.Material);
    gl.driver()->drawMeshBuffer(&quad);
    Camera2DParameterCalculator::reset2DTransforms(gl.device());
    gl.end();
    for (int y = 0; y < 67; ++y)
        for (int x = 0; x < 101; ++x)
            ASSERT_EQ(gl.pixel(x, y).getRed() == 255, x >= 13 && x < 57 && y >= 11 && y < 31) << x << " " << y;
}

} // namespace skyvane

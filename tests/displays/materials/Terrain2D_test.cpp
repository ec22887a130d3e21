#include "core/engine/EngineRef.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/map/PlainQuad.h"
#include "displays/materials/MaterialManager.h"
#include "displays/materials/OGLTerrain2DCB.h"
#include "support/GlDevice.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace skyvane;
using irr::video::SColor;

namespace {

constexpr unsigned flat = 0x8080u << 16; // the normal's parts east and north
constexpr unsigned unknown = 0;

/// Level ground of one height under a light from above, in a white gradient, over a blue background.
class Terrain2DTest : public testing::Test {
protected:
    void SetUp() override {
        if (!gl)
            GTEST_SKIP() << "no display";
        materials = std::make_unique<MaterialManager>(gl.device());
        drawer = std::make_unique<Drawer2D>(gl.device());
        gradient = makeTexture("gradient", 0xffffffff);
        materials->getTerrain2DCallback()->setLightDirection({0.0f, -1.0f, 0.0f});
        materials->getTerrain2DCallback()->setAlpha(1.0f, 1.0f);
    }

    irr::video::ITexture* makeTexture(const char* name, unsigned pixel) {
        if (irr::video::ITexture* old = gl.driver()->findTexture(name))
            gl.driver()->removeTexture(old);
        gl.driver()->setTextureCreationFlag(irr::video::ETCF_CREATE_MIP_MAPS, false);
        auto image = EngineRef<irr::video::IImage>::adopt(
            gl.driver()->createImage(irr::video::ECF_A8R8G8B8, irr::core::dimension2d<irr::u32>(4, 4)));
        image->fill(SColor(pixel));
        return gl.driver()->addTexture(name, image.get());
    }

    SColor draw(unsigned pixel, float altitude) {
        OGLTerrain2DCB& shader = *materials->getTerrain2DCallback();
        shader.setHeightLimits(0.0f, 500.0f, 3000.0f, altitude);
        shader.setImageSize({4, 4});
        EngineRef<irr::scene::SMeshBuffer> quad = makePlainQuad();
        quad->Material.MaterialType = materials->getMaterialType("Terrain2D");
        quad->Material.TextureLayer[0].BilinearFilter = false;
        quad->Material.setTexture(0, makeTexture("ground", pixel));
        quad->Material.setTexture(1, gradient);
        placeQuad(*quad, {{0.0, 0.0}, {16.0, 0.0}, {0.0, 16.0}, {16.0, 16.0}}, SColor(0xffffffff));
        gl.begin(SColor(0xff0000ff));
        drawer->setViewPort({0, 0, 16, 16});
        drawer->draw2DMeshBuffer(quad.get());
        gl.end();
        return gl.pixel(5, 5);
    }
    SColor drawHeight(int metres, float altitude) {
        return draw(flat | static_cast<unsigned>(metres + 12000), altitude);
    }

    void expectColor(SColor actual, double red, double green, double blue, const char* what) {
        EXPECT_NEAR(static_cast<double>(actual.getRed()), red, 4) << what;
        EXPECT_NEAR(static_cast<double>(actual.getGreen()), green, 4) << what;
        EXPECT_NEAR(static_cast<double>(actual.getBlue()), blue, 4) << what;
    }

    GlDevice gl{16, 16};
    std::unique_ptr<MaterialManager> materials;
    std::unique_ptr<Drawer2D> drawer;
    irr::video::ITexture* gradient = nullptr;
};

} // namespace

TEST_F(Terrain2DTest, ColoursWarnByTheClearance) {
    for (const float clearance : {-500.0f, 0.0f, 30.0f, 60.0f, 100.0f, 133.0f, 150.0f, 170.0f, 184.0f, 3000.0f}) {
        const double yellow = std::max(clearance - 30.0, 0.0) / 153.0;
        const double plain = clearance < 183.0f ? std::clamp((clearance - 133.0) / 50.0, 0.2, 1.0) : 1.0;
        const SColor color = drawHeight(1000, 1000.0f + clearance);
        expectColor(color, 255.0, 255.0 * (plain + (1.0 - plain) * yellow), 255.0 * plain,
                    std::to_string(clearance).c_str());
    }
}

TEST_F(Terrain2DTest, TheSeaIsBlueAndWhatNobodyKnowsIsNeither) {
    expectColor(drawHeight(0, 5000.0f), 0.0, 0.19608 * 255.0, 0.42353 * 255.0, "the sea");
    expectColor(drawHeight(1, 5000.0f), 255.0, 255.0, 255.0, "a metre of land");
    const SColor nobody = draw(flat | unknown, 5000.0f);
    EXPECT_LT(nobody.getRed(), 4u) << "the background, or the hatch over it";
    EXPECT_GT(nobody.getBlue(), 150u);
}

TEST_F(Terrain2DTest, OverAScannedChartOnlyWarningsAreSeen) {
    materials->getTerrain2DCallback()->setAlpha(0.0f, 0.75f);
    expectColor(drawHeight(1000, 5000.0f), 0.0, 0.0, 255.0, "nothing");
    expectColor(drawHeight(1000, 1000.0f), 0.75 * 255.0, 0.75 * 51.0, 0.75 * 51.0 + 0.25 * 255.0, "a warning");
}

TEST_F(Terrain2DTest, SlopesAwayFromTheLightAreDark) {
    materials->getTerrain2DCallback()->setLightDirection({1.0f, 0.0f, 0.0f}); // shines to the east
    expectColor(draw(0x00800000u | 13000u, 9000.0f), 255.0, 255.0, 255.0, "a wall that faces west");
    expectColor(draw(0xff800000u | 13000u, 9000.0f), 64.0, 64.0, 64.0, "one that faces east");
}

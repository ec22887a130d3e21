#include "displays/materials/MaterialManager.h"

#include "core/engine/EngineRef.h"
#include "displays/drawing/Drawer2D.h"
#include "support/GlDevice.h"

#include <gtest/gtest.h>

using namespace skyvane;
using irr::video::SColor;

namespace {

/// Draws a half transparent yellow texture, tinted half transparent cyan, over blue, and gives the pixel.
class MaterialManagerTest : public testing::Test {
protected:
    void SetUp() override {
        if (!gl)
            GTEST_SKIP() << "no display";
        materials = std::make_unique<MaterialManager>(gl.device());
        drawer = std::make_unique<Drawer2D>(gl.device());
        auto image = EngineRef<irr::video::IImage>::adopt(
            gl.driver()->createImage(irr::video::ECF_A8R8G8B8, irr::core::dimension2d<irr::u32>(1, 1)));
        image->fill(SColor(0x80ffff00));
        texture = gl.driver()->addTexture("half", image.get());
    }

    SColor draw(const char* name, SColor tint = SColor(0x8000ffff)) {
        gl.begin(SColor(0xff0000ff));
        drawer->setMaterialType(materials->getMaterialType(name));
        drawer->setColor(tint);
        drawer->Draw(texture, irr::core::rect<int>(0, 0, 8, 8));
        drawer->flush();
        gl.end();
        return gl.pixel(4, 4);
    }

    void expectColor(SColor actual, int red, int green, int blue) {
        EXPECT_NEAR(static_cast<int>(actual.getRed()), red, 2);
        EXPECT_NEAR(static_cast<int>(actual.getGreen()), green, 2);
        EXPECT_NEAR(static_cast<int>(actual.getBlue()), blue, 2);
    }

    GlDevice gl{16, 16};
    std::unique_ptr<MaterialManager> materials;
    std::unique_ptr<Drawer2D> drawer;
    irr::video::ITexture* texture = nullptr;
};

TEST_F(MaterialManagerTest, everyMaterialMixesAsItsNameSays) {
    expectColor(draw("Solid"), 255, 255, 0);
    expectColor(draw("VertexAndTextureColor"), 0, 255, 0);
    expectColor(draw("VertexAlpha", SColor(0x4000ffff)), 0, 64, 191);
    expectColor(draw("TextureAlpha", SColor(0x4000ffff)), 128, 128, 127);
    expectColor(draw("Alpha"), 0, 64, 191);
    expectColor(draw("AlphaRef"), 0, 0, 255);
    expectColor(draw("AlphaRef", SColor(0xff00ffff)), 0, 255, 0);
}

TEST_F(MaterialManagerTest, anUnknownNameIsSolid) {
    EXPECT_EQ(materials->getMaterialType("no such"), irr::video::EMT_SOLID);
    EXPECT_NE(materials->getMaterialType("Alpha"), irr::video::EMT_SOLID);
}

} // namespace

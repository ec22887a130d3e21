#include "displays/instruments/PanelTexture.h"

#include <gtest/gtest.h>
#include <utility>

namespace skyvane {
namespace {

class PanelTextureTest : public testing::Test {
protected:
    EngineRef<irr::IrrlichtDevice> device =
        EngineRef<irr::IrrlichtDevice>::adopt(irr::createDevice(irr::video::EDT_NULL));
    irr::video::IVideoDriver* driver = device->getVideoDriver();
};

TEST_F(PanelTextureTest, aMissingFileGivesNone) {
    EXPECT_FALSE(PanelTexture(driver, "/nowhere/alt_bg.png"));
}

TEST_F(PanelTextureTest, theLastUserTakesTheTextureAway) {
    irr::video::ITexture* texture = driver->addTexture(irr::core::dimension2d<irr::u32>(4, 4), "face");
    ASSERT_NE(texture, nullptr);
    {
        PanelTexture second;
        {
            PanelTexture first(driver, texture);
            second = PanelTexture(driver, texture);
        }
        EXPECT_EQ(driver->findTexture("face"), texture);
        PanelTexture moved(std::move(second));
        EXPECT_FALSE(second);
        EXPECT_EQ(moved.get(), texture);
    }
    EXPECT_EQ(driver->findTexture("face"), nullptr);
}

} // namespace
} // namespace skyvane

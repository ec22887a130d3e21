#include "gui/skin/Skin.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

using irr::gui::EGUI_DEFAULT_COLOR;
using irr::video::SColor;

class SkinTest : public ::testing::Test {
protected:
    SkinTest() : device(EngineRef<irr::IrrlichtDevice>::adopt(irr::createDevice(irr::video::EDT_NULL))) {
        skin = EngineRef<Skin>::adopt(new Skin(device->getGUIEnvironment()));
        device->getGUIEnvironment()->setSkin(skin.get());
    }
    EngineRef<irr::IrrlichtDevice> device;
    EngineRef<Skin> skin;
};

} // namespace

TEST_F(SkinTest, NamedColoursFallBackToTheEnginesColourThree) {
    EXPECT_EQ(255u, skin->getColor("bg").getAlpha());
    EXPECT_EQ(skin->getColor(irr::gui::EGDC_3D_HIGH_LIGHT), skin->getColor("never set"));
    skin->setColor("map", SColor(1, 2, 3, 4));
    EXPECT_EQ(SColor(1, 2, 3, 4), skin->getColor("map"));
}

TEST_F(SkinTest, TransparencyChangesAlphaOnly) {
    std::array<SColor, irr::gui::EGDC_COUNT> before;
    for (int i = 0; i < irr::gui::EGDC_COUNT; ++i)
        before[i] = skin->getColor(static_cast<EGUI_DEFAULT_COLOR>(i));
    skin->setGUITransparency(77);
    for (int i = 0; i < irr::gui::EGDC_COUNT; ++i) {
        SColor expected = before[i];
        expected.setAlpha(77);
        EXPECT_EQ(expected, skin->getColor(static_cast<EGUI_DEFAULT_COLOR>(i)));
    }
    skin->setGUITransparency(1000);
    EXPECT_EQ(255u, skin->getColor(irr::gui::EGDC_WINDOW).getAlpha());
}

TEST_F(SkinTest, BrightnessRoundsDownNeverCompoundsAndComesBack) {
    skin->setColor(irr::gui::EGDC_BUTTON_TEXT, SColor(200, 101, 255, 3));
    skin->setGUIBrightness(0.5f);
    skin->setGUIBrightness(0.5f);
    EXPECT_EQ(SColor(200, 50, 127, 1), skin->getColor(irr::gui::EGDC_BUTTON_TEXT));
    skin->setGUIBrightness(100.0f);
    EXPECT_EQ(SColor(200, 255, 255, 255), skin->getColor(irr::gui::EGDC_BUTTON_TEXT));
    skin->setGUIBrightness(1.0f);
    EXPECT_EQ(SColor(200, 101, 255, 3), skin->getColor(irr::gui::EGDC_BUTTON_TEXT));
}

TEST_F(SkinTest, TheEngineDrawsItsElementsThroughIt) {
    irr::gui::IGUIEnvironment* gui = device->getGUIEnvironment();
    ASSERT_EQ(skin.get(), gui->getSkin());
    EXPECT_NE(nullptr, skin->getFont(irr::gui::EGDF_DEFAULT));
    gui->addWindow({0, 0, 200, 200}, false, L"window");
    gui->addButton({0, 0, 50, 20}, nullptr, -1, L"button");
    gui->addTabControl({0, 0, 100, 100})->addTab(L"tab");
    gui->addToolBar();
    gui->addCheckBox(true, {0, 0, 20, 20});
    gui->drawAll();
}

} // namespace skyvane

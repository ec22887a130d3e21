#include "displays/panels/MessageBoxView.h"

#include "core/ICommonAppContext.h"
#include "core/time/Time.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/materials/MaterialManager.h"
#include "support/GlDevice.h"

#include <gtest/gtest.h>
#include <optional>

using namespace skyvane;
using irr::core::rect;
using irr::video::SColor;

namespace {

class App : public ICommonAppContext {
public:
    explicit App(irr::IrrlichtDevice* device) : drawer(device), device_(device) {}
    IMultiEventReceiver* getEventReceiver() override { return nullptr; }
    Drawer2D* getDrawer() override { return &drawer; }
    irr::IrrlichtDevice* getIrrlichtDevice() override { return device_; }
    FlexibleFont* getFlexibleFont() override { return nullptr; }
    int getRecommendedButtonWidth() override { return 80; }
    int getRecommendedButtonHeight() override { return 30; }
    std::string getPath(const std::string& path) override { return path; }
    void setSoftInputVisibility(bool) override {}
    void gotoURL(const std::string&) override {}

    Drawer2D drawer;

private:
    irr::IrrlichtDevice* device_;
};

class MessageBoxViewTest : public testing::Test {
protected:
    static constexpr int width = 400, height = 200;

    void SetUp() override {
        if (!gl)
            GTEST_SKIP() << "no display";
        setClock(&clock);
        materials = std::make_unique<MaterialManager>(gl.device());
        app = std::make_unique<App>(gl.device());
        app->drawer.setMaterialType(materials->getMaterialType("Alpha"));
        view = std::make_unique<MessageBoxView>(
            app.get(), [this](const rect<int>* box) { noMouse = box ? std::optional<rect<int>>(*box) : std::nullopt; });
    }
    void TearDown() override { setClock(nullptr); }

    void show(const std::string& text, bool close = false, bool enabled = true) {
        view->show(text, {0xc8ff0000u, 0xff000000u}, 3000, close, {width, height - 30, 30, {height, 0}}, enabled);
    }
    void frame(const char* picture = nullptr) {
        gl.begin(SColor(0xffffffff));
        view->render();
        gl.end();
        if (picture)
            gl.savePicture(picture);
    }
    irr::SEvent::SMouseInput mouse(irr::EMOUSE_INPUT_EVENT kind, irr::core::vector2d<int> place) {
        irr::SEvent::SMouseInput input{};
        input.Event = kind;
        input.X = place.X;
        input.Y = place.Y;
        return input;
    }
    /// Pixels darker than the box's own red: its outline and its text.
    int darkPixels(const rect<int>& area) const {
        int count = 0;
        for (int y = area.UpperLeftCorner.Y; y < area.LowerRightCorner.Y; ++y)
            for (int x = area.UpperLeftCorner.X; x < area.LowerRightCorner.X; ++x)
                count += gl.pixel(x, y).getRed() < 128;
        return count;
    }

    ManualClock clock;
    GlDevice gl{width, height};
    std::unique_ptr<MaterialManager> materials;
    std::unique_ptr<App> app;
    std::unique_ptr<MessageBoxView> view;
    std::optional<rect<int>> noMouse;
};

TEST_F(MessageBoxViewTest, drawsTheBoxItsOutlineAndTheText) {
    show("GPS: no signal\nBattery low", true);
    frame("messageBox.png");
    ASSERT_TRUE(noMouse);
    const rect<int> box = *noMouse;
    const SColor fill = gl.pixel(box.UpperLeftCorner.X, box.UpperLeftCorner.Y);
    EXPECT_EQ(fill.getRed(), 255u);
    EXPECT_NEAR(static_cast<int>(fill.getGreen()), 55, 2) << "200 of 255 over white";
    EXPECT_EQ(gl.pixel(box.UpperLeftCorner.X - 1, box.UpperLeftCorner.Y), SColor(0xffffffff));
    EXPECT_EQ(gl.pixel(box.UpperLeftCorner.X + 1, box.UpperLeftCorner.Y + 1), SColor(0xff000000)) << "the outline";
    const rect<int> inner(box.UpperLeftCorner + irr::core::vector2d<int>(3, 3),
                          box.LowerRightCorner - irr::core::vector2d<int>(3, 3));
    EXPECT_GT(darkPixels(inner), 100) << "the text";
}

TEST_F(MessageBoxViewTest, goesWithItsTimeAndFreesTheMouse) {
    show("short");
    clock.advance(2.5);
    frame();
    ASSERT_TRUE(noMouse);
    const SColor fading = gl.pixel(noMouse->UpperLeftCorner.X, noMouse->UpperLeftCorner.Y);
    EXPECT_NEAR(static_cast<int>(fading.getGreen()), 155, 3) << "half of 200 over white";
    clock.advance(0.6);
    frame();
    EXPECT_FALSE(noMouse);
    EXPECT_FALSE(view->isVisible());
    EXPECT_EQ(darkPixels(rect<int>(0, 0, width, height)), 0);
}

TEST_F(MessageBoxViewTest, neitherEmptyNorDisabledOnesBlockTheMouse) {
    show("");
    EXPECT_FALSE(view->isVisible());
    show("text", false, false);
    EXPECT_FALSE(noMouse);
}

TEST_F(MessageBoxViewTest, aBoxThatIsNotDrawnForAWhileLeavesTheMouseMeanwhile) {
    show("text");
    const auto box = noMouse;
    view->letMousePass();
    EXPECT_FALSE(noMouse);
    frame();
    EXPECT_EQ(noMouse, box);
}

TEST_F(MessageBoxViewTest, wrapsLongTextsWithinTheScreen) {
    std::string words;
    for (int i = 0; i < 40; ++i)
        words += "altitude ";
    show(words);
    ASSERT_TRUE(noMouse);
    EXPECT_LE(noMouse->getWidth(), static_cast<int>(0.9 * width) + 15);
    EXPECT_GT(noMouse->getHeight(), 40);
    EXPECT_EQ(noMouse->LowerRightCorner.Y, height - 30);
}

TEST_F(MessageBoxViewTest, aReleaseInsideDismissesAndFreesTheMouse) {
    show("text");
    const auto middle = noMouse->getCenter();
    EXPECT_EQ(view->processMouse(mouse(irr::EMIE_MOUSE_MOVED, middle)), MessageBox::Answer::NotMine);
    EXPECT_EQ(view->processMouse(mouse(irr::EMIE_LMOUSE_PRESSED_DOWN, middle)), MessageBox::Answer::Consumed);
    EXPECT_EQ(view->processMouse(mouse(irr::EMIE_LMOUSE_LEFT_UP, middle)), MessageBox::Answer::Dismissed);
    EXPECT_FALSE(noMouse);
}

} // namespace

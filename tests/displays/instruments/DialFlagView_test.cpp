#include "displays/drawing/Drawer2D.h"
#include "displays/instruments/DialFlagView.h"
#include "support/GlDevice.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

constexpr int edge = 200;
const irr::video::SColor ground(0xff204060);

class DialFlagViewTest : public testing::Test {
protected:
    void SetUp() override {
        if (!gl)
            GTEST_SKIP() << "no display";
    }
    void show(DialFlag flag) {
        Drawer2D drawer(gl.device());
        DialFlagView view(&drawer);
        gl.begin(ground);
        view.drawShapes(flag, DialFrame(edge));
        drawer.flush();
        gl.end();
    }
    bool isRed(int x, int y) const { return gl.pixel(x, y).getRed() > 200 && gl.pixel(x, y).getGreen() < 60; }
    bool isYellow(int x, int y) const { return gl.pixel(x, y).getRed() > 200 && gl.pixel(x, y).getGreen() > 180; }

    GlDevice gl{edge, edge};
};

TEST_F(DialFlagViewTest, aFailureIsCrossedOutWithoutAnyImageFile) {
    show(DialFlag::Failed);
    for (int at : {50, 75, 100, 125, 150}) {
        EXPECT_TRUE(isRed(at, at)) << at;
        EXPECT_TRUE(isRed(at, edge - at)) << at;
    }
    EXPECT_EQ(gl.pixel(100, 40), ground);
}

TEST_F(DialFlagViewTest, aDoubtIsARingThatLeavesTheFaceFree) {
    show(DialFlag::Doubtful);
    EXPECT_TRUE(isYellow(100, 10));
    EXPECT_TRUE(isYellow(190, 100));
    for (int x = 30; x <= 170; x += 20)
        EXPECT_EQ(gl.pixel(x, 100), ground);
}

TEST_F(DialFlagViewTest, aGoodOrSimulatedValueIsNotMarked) {
    for (DialFlag flag : {DialFlag::Good, DialFlag::Simulated}) {
        show(flag);
        for (int at = 5; at < edge; at += 10)
            EXPECT_EQ(gl.pixel(at, at), ground);
    }
}

} // namespace
} // namespace skyvane

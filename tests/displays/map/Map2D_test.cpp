#include "displays/map/Map2D.h"

#include "core/engine/TouchEvents.h"
#include "displays/map/MapParts.h"
#include "gui/windows/DialogFixture.h"
#include "sensors/SensorManager.h"

#include <limits>
#include <random>

using namespace skyvane;

namespace {

/// A map without charts in a program whose flight is simulated.
class Map2DTest : public DialogFixture {
protected:
    void SetUp() override {
        DialogFixture::SetUp();
        if (context)
            map = std::make_unique<Map2D>(context.get(), MapSettings(), "", writers);
    }
    void TearDown() override {
        map.reset();
        DialogFixture::TearDown();
    }

    void fly(double longitude, double latitude, int heading) {
        context->getSensorManager()->startSimulation(ChartPosition(longitude, latitude), heading, 1000);
    }
    void draw(int count = 1) {
        for (int i = 0; i < count; ++i) {
            gl.begin(irr::video::SColor(0xff000000));
            map->render(panel);
            gl.end();
        }
    }
    bool isComplete() { return map->getParts().tiles.isComplete() && !map->getParts().tiles.isFilling(); }
    void drawUntilComplete() {
        for (int i = 0; i < 300 && !isComplete(); ++i)
            draw();
    }
    bool touch(uint32_t id, TouchEvent::Phase phase, int x, int y) {
        TouchEvent finger;
        finger.id = id;
        finger.phase = phase;
        finger.x = x;
        finger.y = y;
        return map->processEvent(packTouchEvent(finger));
    }
    bool mouse(irr::EMOUSE_INPUT_EVENT kind, int x, int y, bool pressed) {
        irr::SEvent event{};
        event.EventType = irr::EET_MOUSE_INPUT_EVENT;
        event.MouseInput.Event = kind;
        event.MouseInput.X = x;
        event.MouseInput.Y = y;
        event.MouseInput.Wheel = 1.0f;
        event.MouseInput.ButtonStates = pressed ? irr::EMBSM_LEFT : 0;
        return map->processEvent(event);
    }

    TileWriters writers;
    std::unique_ptr<Map2D> map;
    irr::core::rect<int> panel{100, 20, 700, 420};
};

} // namespace

TEST_P(Map2DTest, WildPlacesAndSizesAreDrawn) {
    draw(3); // nobody knows where it is
    for (const double longitude : {0.0, 179.999, -180.0, 359.9})
        for (const double latitude : {0.0, 89.99, -90.0, 88.9}) {
            fly(longitude, latitude, 77);
            draw(2);
            EXPECT_LE(map->getDrawnBox(false).north, 89.0 + 1e-9);
        }
    map->getParts().view.toggleOrientation();
    for (const irr::core::rect<int>& place :
         {irr::core::rect<int>(0, 0, 0, 0), irr::core::rect<int>(5, 5, 8, 400), irr::core::rect<int>(-50, -50, 90, 90),
          irr::core::rect<int>(0, 0, 300, 12), irr::core::rect<int>(0, 0, 800, 480)}) {
        panel = place;
        draw(3);
    }
    drawUntilComplete();
    EXPECT_TRUE(isComplete());
}

TEST_P(Map2DTest, AStormOfFingersLeavesAMap) {
    fly(10.0, 50.0, 30);
    draw(2);
    std::mt19937 random(5);
    std::uniform_int_distribution<int> x(0, 800), y(0, 480), kind(0, 6), finger(0, 3);
    for (int i = 0; i < 3000; ++i) {
        const int px = x(random), py = y(random);
        switch (kind(random)) {
        case 0:
            mouse(irr::EMIE_LMOUSE_PRESSED_DOWN, px, py, true);
            break;
        case 1:
            mouse(irr::EMIE_LMOUSE_LEFT_UP, px, py, false);
            break;
        case 2:
            mouse(irr::EMIE_MOUSE_MOVED, px, py, i % 3 != 0);
            break;
        case 3:
            mouse(irr::EMIE_MOUSE_WHEEL, px, py, false);
            break;
        default:
            touch(static_cast<uint32_t>(finger(random)), static_cast<TouchEvent::Phase>(i % 3), px, py);
        }
        if (i % 100 == 0)
            draw();
        if (i % 700 == 0)
            map->OnChartChanged();
    }
    EXPECT_GE(map->getViewArea(), 0.00014 * 0.99);
    EXPECT_LE(map->getViewArea(), 200.0 * 1.01);
    map->OnPageChange();
    drawUntilComplete();
    EXPECT_TRUE(isComplete());
}

TEST_P(Map2DTest, APinchZoomsAndTheMapFollowsOn) {
    fly(10.0, 50.0, 30);
    draw(2);
    const double before = map->getMetresPerPixel();
    mouse(irr::EMIE_LMOUSE_PRESSED_DOWN, 300, 200, true);
    touch(1, TouchEvent::Pressed, 300, 200);
    EXPECT_FALSE(touch(2, TouchEvent::Pressed, 400, 200));
    EXPECT_FALSE(touch(2, TouchEvent::Moved, 500, 200));
    EXPECT_NEAR(before / 1.5, map->getMetresPerPixel(), 1e-9 * before);
    touch(2, TouchEvent::Left, 500, 200);
    touch(1, TouchEvent::Left, 300, 200);
    mouse(irr::EMIE_LMOUSE_LEFT_UP, 300, 200, false);
    EXPECT_EQ(MapMode::NorthUp, map->getParts().view.getMode());
    EXPECT_TRUE(mouse(irr::EMIE_LMOUSE_PRESSED_DOWN, 20, 200, true)) << "beside the panel";
}

TEST_P(Map2DTest, MapsThatShareTargetsDrawThemAnew) {
    fly(10.0, 50.0, 30);
    drawUntilComplete();
    ASSERT_TRUE(isComplete());
    const Map2DTest* mapOfAnotherPage = this;
    writers.begin()->second = mapOfAnotherPage;
    EXPECT_FALSE(isComplete()) << "somebody else drew into it";
    drawUntilComplete();
    EXPECT_TRUE(isComplete());
}

INSTANTIATE_TEST_SUITE_P(Screens, Map2DTest, testing::Values(irr::core::dimension2du(800, 480)));

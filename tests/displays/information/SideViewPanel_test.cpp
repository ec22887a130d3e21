#include "displays/information/SideViewPanel.h"

#include "core/engine/TouchEvents.h"
#include "core/ini/IniFile.h"
#include "displays/PanelManager.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/map/elements/AirspaceRenderer.h"
#include "displays/mapmath/elements/AirspaceStyles.h"
#include "gui/windows/DialogFixture.h"
#include "procedures/ProcedureManager.h"
#include "procedures/direct/DirectProcedure.h"
#include "sensors/SensorManager.h"
#include "sensors/StandardDataFactories.h"
#include "support/AllocationCounter.h"

#include <random>

using namespace skyvane;

namespace {

const ChartPosition start(8.0, 50.0), aim(8.0, 50.5);

/// A side view in a program without charts, in the place of whose terrain the test answers.
class SideViewPanelTest : public DialogFixture {
protected:
    void SetUp() override {
        DialogFixture::SetUp();
        if (!context)
            return;
        view = std::make_unique<SideViewPanel>(context.get(), SideViewSettings());
        addStandardDataFactories(*context->getSensorManager());
        IniFile none;
        context->getSensorManager()->loadSensorSettingsFromIni(&none, false);
        context->getSensorManager()->startSimulation(start, 0, 1000);
        context->getSensorManager()->Update();
    }
    void TearDown() override {
        view.reset();
        DialogFixture::TearDown();
    }

    void draw(int count = 1) {
        for (int i = 0; i < count; ++i) {
            gl.begin(irr::video::SColor(0xff000000));
            view->render(panel);
            gl.end();
        }
    }
    void plan() {
        ProcedureManager& procedures = *context->getProcedureManager();
        procedures.addProcedure(std::make_unique<DirectProcedure>(aim, nullptr));
        procedures.getCurrentProcedure()->setLocationAltitude(800.0);
        procedures.calculateCourseList();
    }
    /// A ridge of 600 m in the middle of the way, the first quarter of it unknown.
    void answer() {
        std::vector<ChartPosition> row;
        for (size_t i = 0; i < points; ++i)
            row.emplace_back(start.longitude,
                             start.latitude + (aim.latitude - start.latitude) * static_cast<double>(i) / (points - 1));
        RouteProfile profile(nullptr, row, 1.0);
        profile.number = ++number;
        profile.pathAltitudes.assign(points, 700.0f);
        profile.totalMetres = 55600.0;
        for (size_t i = 0; i < points; ++i) {
            profile.heights[i] = i > points / 2 - 20 && i < points / 2 + 20 ? 600.0f : 100.0f;
            profile.known[i] = i >= points / 4;
        }
        profile.minimum = 100.0f;
        profile.maximum = 600.0f;
        RouteProfile::Stop stop;
        stop.distanceMetres = 55600.0;
        stop.altitudeMetres = 700.0;
        profile.stops.push_back(stop);
        context->getProcedureManager()->OnHeightPoints(profile);
    }
    void press(const wchar_t* text) {
        irr::gui::IGUIElement* button = findText(root, text);
        ASSERT_NE(nullptr, button);
        irr::SEvent event{};
        event.EventType = irr::EET_GUI_EVENT;
        event.GUIEvent.EventType = irr::gui::EGET_BUTTON_CLICKED;
        event.GUIEvent.Caller = button;
        EXPECT_FALSE(view->processEvent(event));
    }
    bool touch(uint32_t id, TouchEvent::Phase phase, int x, int y) {
        TouchEvent finger;
        finger.id = id;
        finger.phase = phase;
        finger.x = x;
        finger.y = y;
        return view->processEvent(packTouchEvent(finger));
    }
    bool mouse(int x, int y) {
        irr::SEvent event{};
        event.EventType = irr::EET_MOUSE_INPUT_EVENT;
        event.MouseInput.Event = irr::EMIE_LMOUSE_PRESSED_DOWN;
        event.MouseInput.X = x;
        event.MouseInput.Y = y;
        return view->processEvent(event);
    }

    size_t points = 512;
    unsigned number = 1000;
    std::unique_ptr<SideViewPanel> view;
    irr::core::rect<int> panel{20, 30, 780, 430};
};

} // namespace

TEST_P(SideViewPanelTest, ShowsTheWordWithoutAPlanAndTheGroundWithOne) {
    draw(2);
    EXPECT_FALSE(isShown(L"Center")) << "no plan, no buttons";
    EXPECT_TRUE(mouse(300, 200)) << "nothing to touch";
    const auto top = gl.pixel(700, 36), bottom = gl.pixel(700, 425);
    EXPECT_NEAR(static_cast<int>(top.getRed()), 0x19, 3);
    EXPECT_NEAR(static_cast<int>(bottom.getRed()), 0x50, 3);
    EXPECT_NEAR(static_cast<int>(bottom.getBlue()), 0x6e, 3);
    plan();
    draw(2);
    EXPECT_TRUE(isShown(L"Center"));
    answer();
    draw(2);
    picture("sideview");
    const SideAxes& axes = view->getScene().axes;
    EXPECT_NEAR(axes.top, 1000.0 + 300.0, 1e-6) << "above the flight; ground and course lie lower";
    const auto row = [&](double metres) {
        return static_cast<int>(430.0 - (metres - 100.0) * 400.0 / (axes.top - 100.0));
    };
    const int middle = 20 + 760 / 2;
    const auto isSky = [&](int x, int y) { return gl.pixel(x, y).getBlue() > gl.pixel(x, y).getRed() + 15; };
    EXPECT_FALSE(isSky(middle, row(600.0) + 6));
    EXPECT_TRUE(isSky(middle, row(600.0) - 6));
    EXPECT_TRUE(isSky(middle + 100, row(600.0) + 20)) << "beside the ridge";
    const auto course = gl.pixel(20 + 760 * 3 / 10, row(700.0));
    EXPECT_GT(course.getRed(), 200u);
    EXPECT_LT(course.getGreen(), 110u);
    const PointCall* call = context->getProcedureManager()->getLastPointCall();
    const auto place = view->transfromToScreenCoords(call, 256, 600.0);
    EXPECT_NEAR(place.X, middle, 1);
    EXPECT_NEAR(place.Y, row(600.0), 1);
    context->getProcedureManager()->deleteAllProcedures();
    draw();
    EXPECT_FALSE(isShown(L"Center"));
}

TEST_P(SideViewPanelTest, ButtonsFingersAndPressesDoWhatTheySay) {
    plan();
    answer();
    draw(2);
    const double top = view->getRange().getTop();
    press(L"+");
    draw();
    EXPECT_NEAR(view->getRange().getTop(), 1.5 * top, 1e-9);
    press(L"-");
    press(L"-");
    draw();
    EXPECT_NEAR(view->getRange().getTop(), top / 1.5, 1e-9);
    press(L"Center");
    draw();
    EXPECT_NEAR(view->getRange().getTop(), top, 1e-9);
    EXPECT_TRUE(view->getRange().isFollowing());
    touch(1, TouchEvent::Pressed, 300, 200);
    EXPECT_FALSE(touch(2, TouchEvent::Pressed, 400, 200));
    EXPECT_FALSE(touch(2, TouchEvent::Moved, 500, 200));
    EXPECT_NEAR(view->getRange().getTop(), top / 2.0, 1e-9);
    touch(1, TouchEvent::Left, 300, 200);
    touch(2, TouchEvent::Left, 500, 200);
    EXPECT_TRUE(touch(3, TouchEvent::Pressed, 5, 5)) << "beside the panel";
    touch(4, TouchEvent::Pressed, 300, 200);
    view->OnPageChange(); // the finger leaves the glass on another page
    draw();
    EXPECT_TRUE(touch(5, TouchEvent::Pressed, 400, 200)) << "a single finger";
    touch(5, TouchEvent::Left, 400, 200);
    view->OnProcedureChanged();
    draw();
    EXPECT_TRUE(view->getRange().isFollowing());
    press(L"->");
    draw();
    EXPECT_NEAR(view->getScene().axes.shown * view->getScene().axes.stepMetres, 20.0 * 1852.0, 1.0);
    press(L"<-");
    draw();
    EXPECT_EQ(view->getScene().axes.shown, 512.0);
    press(L"<-->");
    EXPECT_EQ(context->getPanelManager()->getFullScreenPanel(), view.get());
    draw();
    press(L"-> <-");
    EXPECT_EQ(context->getPanelManager()->getFullScreenPanel(), nullptr);
    press(L"Airspaces"); // there are no charts
    draw(2);
    EXPECT_FALSE(isShown(L"Airspaces"));
    const auto stop = view->transfromToScreenCoords(context->getProcedureManager()->getLastPointCall(), 511, 700.0);
    EXPECT_FALSE(mouse(stop.X - 20, stop.Y + 10));
    EXPECT_EQ(view->getScene().selected, 0);
    draw();
    mouse(300, 380);
    EXPECT_EQ(view->getScene().selected, -1);
    view->OnChartChanged();
    draw();
    view->OnPageChange();
    EXPECT_FALSE(isShown(L"Center"));
    draw();
    EXPECT_TRUE(isShown(L"Center"));
}

TEST_P(SideViewPanelTest, AllocatesNothingWhileNothingChanges) {
    plan();
    answer();
    draw(4);
    ASSERT_TRUE(view->getScene().place) << "the aircraft is in the picture";
    const unsigned rebuilds = view->getRebuilds();
    gl.begin(irr::video::SColor(0xff000000));
    const AllocationCounter counter;
    view->render(panel);
    EXPECT_EQ(counter.count(), 0u);
    gl.end();
    EXPECT_EQ(view->getRebuilds(), rebuilds);
}

TEST_P(SideViewPanelTest, WildSizesAndValuesAreDrawn) {
    plan();
    for (const size_t count : {2, 3, 64, 512}) {
        points = count;
        answer();
        for (const irr::core::rect<int>& place :
             {irr::core::rect<int>(0, 0, 0, 0), irr::core::rect<int>(5, 5, 8, 400),
              irr::core::rect<int>(-50, -50, 90, 90), irr::core::rect<int>(0, 0, 300, 12),
              irr::core::rect<int>(0, 0, 900, 700), irr::core::rect<int>(9, 9, 250, 100)}) {
            panel = place;
            draw();
            mouse(30, 30);
            draw();
        }
    }
    RouteProfile& profile = *context->getProcedureManager()->getLastPointCall();
    panel = {0, 0, 700, 400};
    profile.pathAltitudes.assign(512, NAN);
    profile.totalMetres = 0.0;
    view->OnChartChanged();
    draw();
    context->getSensorManager()->startSimulation(ChartPosition(-170.0, -89.0), 10, 99999);
    draw();
    press(L"->");
    draw(2);
}

TEST_P(SideViewPanelTest, AnAirspaceLiesBetweenItsLimitsAndWithinItsLine) {
    const ShapePath upper{{100.0, 100.0}, {200.0, 60.0}, {300.0, 100.0}},
        lower{{100.0, 300.0}, {200.0, 300.0}, {300.0, 300.0}};
    const AirspaceStyle& style = airspaceStyle("D");
    ShapeMesh mesh;
    AirspaceRenderer::renderSide(mesh, style, upper, lower, ShapeRect(0.0, 0.0, 800.0, 480.0));
    gl.begin(irr::video::SColor(0xff000000));
    context->getDrawer()->draw(mesh);
    context->getDrawer()->flush();
    gl.end();
    const irr::video::SColor color(style.argb);
    const auto isShare = [&](int x, int y, double share) {
        const irr::video::SColor seen = gl.pixel(x, y);
        return std::fabs(seen.getGreen() - share * color.getGreen()) < 8.0 &&
               std::fabs(seen.getBlue() - share * color.getBlue()) < 8.0;
    };
    EXPECT_TRUE(isShare(200, 200, 0.25));
    EXPECT_TRUE(isShare(150, 95, 0.25)) << "below the slanting edge";
    EXPECT_TRUE(isShare(150, 68, 0.0)) << "above it";
    EXPECT_TRUE(isShare(100, 200, 1.0) && isShare(299, 200, 1.0)) << "the line";
    EXPECT_TRUE(isShare(200, 310, 0.0) && isShare(90, 200, 0.0) && isShare(310, 200, 0.0));
    const size_t before = mesh.vertices.size();
    AirspaceRenderer::renderSide(mesh, style, {}, lower, ShapeRect(0.0, 0.0, 800.0, 480.0));
    EXPECT_EQ(mesh.vertices.size(), before) << "edges that don't belong together";
}

INSTANTIATE_TEST_SUITE_P(Screens, SideViewPanelTest, testing::Values(irr::core::dimension2du(800, 480)));

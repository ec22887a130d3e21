#include "displays/vision/Map3D.h"

#include "displays/vision/VisionReader.h"
#include "displays/vision/VisionRig.h"
#include "displays/visionmath/GlassSymbols.h"
#include "displays/visionmath/HorizonLine.h"
#include "displays/visionmath/bars/PfdLayout.h"
#include "procedures/ProcedureManager.h"
#include "sensors/records/Pressure_Data.h"
#include "sensors/records/Traffic_Data.h"
#include "support/AllocationCounter.h"

#include <cmath>
#include <limits>

namespace skyvane {
namespace {

class Map3DTest : public VisionRig {
protected:
    ViewPose poseOf(double heading, double pitch, double bank) {
        fly({1.5, 42.5}, 1000.0, heading, pitch, bank);
        ViewPose pose;
        const auto* attitude = static_cast<Attitude_Data*>(sensor->getData(ISensorData::Attitude));
        EXPECT_TRUE(lookAlong(attitude->matrix, pose));
        return pose;
    }
    /// The first row of a column that shows plain ground.
    int groundRow(int x) const {
        for (int y = 0; y < height; ++y)
            if (isEarth(gl.pixel(x, y)))
                return y;
        return height;
    }
    bool offer(irr::EMOUSE_INPUT_EVENT kind, int x, int y, float wheel = 0.0f) {
        irr::SEvent event{};
        event.EventType = irr::EET_MOUSE_INPUT_EVENT;
        event.MouseInput.Event = kind;
        event.MouseInput.X = x;
        event.MouseInput.Y = y;
        event.MouseInput.Wheel = wheel;
        event.MouseInput.ButtonStates = kind == irr::EMIE_LMOUSE_LEFT_UP ? 0 : irr::EMBSM_LEFT;
        return panel->processEvent(event);
    }
};

TEST_F(Map3DTest, putsTheHorizonWhereTheAttitudeSays) {
    makePanel("renderBank = 0\n");
    const Lens lens(width, height);
    const struct {
        double heading, pitch, bank;
    } attitudes[] = {{0, 0, 0}, {77, 8, 0}, {180, -12, 0}, {300, 0, 30}, {10, 5, -45}, {123, -6, 60}};
    for (const auto& attitude : attitudes) {
        const HorizonLine line = calcHorizon(poseOf(attitude.heading, attitude.pitch, attitude.bank), lens);
        frame();
        for (const int x : {6, width - 7}) {
            const double expected =
                line.getFoot(lens).Y - (x + 0.5 - line.getFoot(lens).X) * line.skyward.X / line.skyward.Y;
            if (expected > 4.0 && expected < height - 4.0) {
                EXPECT_NEAR(groundRow(x), expected, 4.0) << attitude.pitch << " " << attitude.bank << " at " << x;
            }
        }
    }
    // Upside down the ground is above.
    poseOf(0, 0, 180);
    frame();
    EXPECT_TRUE(isEarth(gl.pixel(10, 10)));
    EXPECT_TRUE(isSky(gl.pixel(10, height - 10)));
}

TEST_F(Map3DTest, alwaysShowsASliverOfSkyAndOfGround) {
    makePanel();
    for (const double pitch : {-88.0, -50.0, 50.0, 88.0})
        for (const double bank : {0.0, 70.0, 180.0}) {
            poseOf(30.0, pitch, bank);
            frame();
            EXPECT_GT(share(area, isSky), 0.02) << pitch << " " << bank;
            EXPECT_GT(share(area, isEarth), 0.02) << pitch << " " << bank;
            EXPECT_GT(share({width / 4, height / 4, width * 3 / 4, height * 3 / 4}, isRed), 0.01)
                << "chevrons at " << pitch << " " << bank;
        }
    poseOf(30.0, 10.0, 20.0);
    frame("vision.png");
    EXPECT_LT(share(area, isRed), 0.001);
}

TEST_F(Map3DTest, coloursTheGroundByClearance) {
    saveFlatEarth(800);
    makePanel();
    fly({1.5, 42.5}, 1000.0, 0.0, -50.0, 0.0);
    ASSERT_TRUE(waitForTerrain());
    frame();
    EXPECT_LT(share({0, height * 3 / 4, width, height}, isAmber), 0.01) << "complete";
    const irr::video::SColor plain = gl.pixel(30, height - 20);
    EXPECT_GT(plain.getGreen(), plain.getRed()) << "meadows, 200 m below";
    const auto mixed = [&plain](double share, double red, double green) {
        return std::array<double, 3>{share * plain.getRed() + (1 - share) * red * 255,
                                     share * plain.getGreen() + (1 - share) * green * 255, share * plain.getBlue()};
    };
    const struct {
        double altitude;
        std::array<double, 3> color;
    } expected[] = {{820.0, mixed(0.2, 1.0, 0.0)},          {829.0, mixed(0.2, 1.0, 0.0)},
                    {900.0, mixed(0.2, 1.0, 70.0 / 153.0)}, {958.0, mixed(0.5, 1.0, 128.0 / 153.0)},
                    {983.5, mixed(1.0, 1.0, 1.0)},          {700.0, mixed(0.2, 1.0, 0.0)}};
    for (const auto& each : expected) {
        fly({1.5, 42.5}, each.altitude, 0.0, each.altitude < 800.0 ? 50.0 : -50.0, 0.0);
        frame();
        const irr::video::SColor color = gl.pixel(30, each.altitude < 800.0 ? height / 2 : height - 20);
        EXPECT_NEAR(color.getRed(), each.color[0], 6.0) << each.altitude;
        EXPECT_NEAR(color.getGreen(), each.color[1], 6.0) << each.altitude;
        EXPECT_NEAR(color.getBlue(), each.color[2], 6.0) << each.altitude;
    }
}

TEST_F(Map3DTest, neitherHidesMissingTerrainNorShowsItAsSea) {
    makePanel();
    const irr::core::rect<int> box(width / 4, height * 3 / 4, width * 3 / 4, height);
    frame();
    EXPECT_GT(share(box, isAmber), 0.005) << "TERRAIN INCOMPLETE";
    panel.reset();
    context->getPanelManager()->unload();
    saveFlatEarth(0);
    makePanel();
    fly({1.5, 42.5}, 1000.0, 0.0, -40.0, 0.0);
    ASSERT_TRUE(waitForTerrain());
    frame();
    EXPECT_LT(share(box, isAmber), 0.001);
    const irr::video::SColor sea = gl.pixel(30, height - 20);
    EXPECT_NEAR(sea.getBlue(), 108, 4);
    EXPECT_NEAR(sea.getRed(), 0, 4);
    // The position jumps: that sea isn't here.
    fly({3.5, 44.5}, 1000.0, 0.0, -40.0, 0.0);
    frame();
    EXPECT_GT(share(box, isAmber), 0.005);
    EXPECT_TRUE(isEarth(gl.pixel(30, height - 20)));
    // Narrow panels too keep the words off the corner where the next point of the plan is told.
    for (const int narrow : {130, 240}) {
        area = {0, 0, narrow, height};
        frame();
        const ShapeRect corner = PfdLayout(area, VisionSettings()).nextFix;
        const auto right = static_cast<int>(corner.LowerRightCorner.X),
                   top = static_cast<int>(corner.UpperLeftCorner.Y);
        EXPECT_EQ(share({0, top, right, height}, isAmber), 0.0) << narrow;
        EXPECT_GT(share({right, height * 3 / 4, narrow, height}, isAmber), 0.002) << narrow;
    }
}

TEST_F(Map3DTest, takesNoFarSampleOfACoarseTileForTheGround) {
    saveFlatEarth(300);
    // Only the whole earth's tile tells a height.
    for (const auto& entry : std::filesystem::directory_iterator(home + "/.Skyvane/Terrain/"))
        if (entry.path().filename() != "0.terr")
            std::filesystem::remove(entry.path());
    makePanel();
    fly({1.5, 42.5}, 1000.0, 0.0, -20.0, 0.0);
    ASSERT_TRUE(waitForTerrain());
    const irr::core::rect<int> box(width / 4, height * 3 / 4, width * 3 / 4, height),
        ground(5, height - 40, 60, height);
    const auto isGrey = [](irr::video::SColor c) {
        return c.getBlue() > c.getGreen() && c.getBlue() < c.getRed() + 30;
    };
    frame("vision_coarse.png");
    EXPECT_GT(share(box, isAmber), 0.005) << "TERRAIN INCOMPLETE";
    EXPECT_GT(share(ground, isGrey), 0.9) << "not meadows";
    EXPECT_TRUE(std::isinf(readVision(*context).groundMetres)) << "no height above it";
}

TEST_F(Map3DTest, flagsWhatCannotBeBelieved) {
    saveFlatEarth(500);
    makePanel();
    fly({1.5, 42.5}, 1000.0, 0.0, -10.0, 0.0);
    ASSERT_TRUE(waitForTerrain());
    const irr::core::rect<int> boxes(width / 4, height * 2 / 3, width * 3 / 4, height);
    const auto isMeadow = [](irr::video::SColor c) { return c.getGreen() > c.getRed() + 20 && c.getGreen() > 100; };
    const irr::core::rect<int> ground(5, height - 60, 60, height - 5);
    frame();
    EXPECT_LT(share(area, isRed), 0.001);
    EXPECT_GT(share(ground, isMeadow), 0.9);
    for (const auto type : {ISensorData::Position, ISensorData::Altitude, ISensorData::Heading}) {
        sensor->levels = {{type, ISensor::WRONG}};
        frame();
        EXPECT_GT(share(boxes, isRed), 0.005) << type;
        EXPECT_LT(share(ground, isMeadow), 0.01) << "no ground at a place that nobody knows, " << type;
        EXPECT_GT(share(area, isSky), 0.2) << "the attitude is good";
    }
    const auto isYellow = [](irr::video::SColor c) {
        return c.getRed() > 200 && c.getGreen() > 180 && c.getBlue() < 90;
    };
    sensor->levels.clear();
    frame();
    const double before = share(area, isYellow);
    for (const auto type :
         {ISensorData::Attitude, ISensorData::Position, ISensorData::Altitude, ISensorData::Heading}) {
        sensor->levels = {{type, ISensor::MAYBE_WRONG}};
        frame();
        EXPECT_GT(share(area, isYellow), before + 0.004) << "horizon and ladder turn yellow, " << type;
    }
    sensor->levels = {{ISensorData::Attitude, ISensor::WRONG}};
    frame("vision_att.png");
    EXPECT_GT(share(area, isRed), 0.02);
    EXPECT_LT(share(area, isSky), 0.001) << "no horizon that may lie";
    sensor->records.erase(ISensorData::Attitude);
    frame();
    EXPECT_FALSE(panel->isFirstPerson());
    EXPECT_GT(share(boxes, isRed), 0.005) << "ATT";
}

/// Straight north over sea level.
class NorthProcedure : public IProcedure {
public:
    explicit NorthProcedure(bool transition) : IProcedure(nullptr), transition_(transition) {}
    void calculateCourseList(ChartPosition position, double altitude, double) override {
        CourseList list;
        for (const double north : {0.0, 0.5}) {
            CourseElement element;
            element.position = {position.longitude, position.latitude + north};
            element.altitude = altitude;
            element.course = 0.0;
            element.transition = transition_;
            list.push_back(element);
        }
        setCourseList(list);
    }
    std::string getName() override { return "North"; }
    Type getType() override { return Direct; }

private:
    bool transition_;
};

TEST_F(Map3DTest, putsTheHighwaysRectanglesAtTheirPlaces) {
    makePanel("renderBank = 0\n");
    ProcedureManager& plan = *context->getProcedureManager();
    const auto fetch = [&] {
        plan.calculateCourseList();
        for (int i = 0; i < 200 && plan.getActiveMesh()->getMeshBuffer(0)->getVertexCount() == 0; ++i) {
            Delay(20);
            plan.Update(false);
        }
        panel->OnProcedureNodesDelete();
        panel->OnProcedureMeshExchanged();
    };
    plan.addProcedure(std::make_unique<NorthProcedure>(false));
    fetch();
    // 300 m before the second rectangle, 40 m below its middle.
    const ChartPosition place(1.5, 42.5 + 700.0 / 111194.94);
    fly(place, 960.0, 0.0, 0.0, 0.0);
    frame("vision_highway.png");
    const Lens lens(width, height);
    const double y = height / 2.0 - lens.focalPixels * 40.0 / 300.0, half = lens.focalPixels * 16.5 / 300.0;
    const auto at = [](double x, double row) {
        return irr::core::rect<int>(static_cast<int>(x) - 3, static_cast<int>(row) - 3, static_cast<int>(x) + 4,
                                    static_cast<int>(row) + 4);
    };
    EXPECT_GT(share(at(width / 2.0 - half, y), isMagenta), 0.2);
    EXPECT_GT(share(at(width / 2.0 + half, y), isMagenta), 0.2);
    EXPECT_GT(share(at(width / 2.0, y - half), isMagenta), 0.2);
    EXPECT_EQ(share(at(width / 2.0, y), isMagenta), 0.0) << "one flies through";
    EXPECT_EQ(share(at(width / 2.0 + 2.0 * half, y), isMagenta), 0.0);
    plan.deleteAllProcedures();
    frame();
    EXPECT_EQ(share(area, isMagenta), 0.0) << "a plan that was taken away isn't flown on";
}

TEST_F(Map3DTest, drawsAPlanThatChangesAllTheTime) {
    makePanel("renderBank = 0\n");
    ProcedureManager& plan = *context->getProcedureManager();
    const auto isBlue = [](irr::video::SColor c) {
        return c.getRed() < 20 && c.getGreen() > 70 && c.getGreen() < 160 && c.getBlue() > 180;
    };
    const irr::core::rect<int> scene(width / 4, 0, width, height); // without the words of the next point
    bool wasShown = false;
    for (int i = 0; i < 60; ++i) {
        if (i % 7 == 6)
            plan.deleteAllProcedures();
        else
            plan.addProcedure(std::make_unique<NorthProcedure>(true));
        plan.calculateCourseList();
        fly({1.5, 42.5 + 0.001 * i}, 900.0 + 5.0 * i, 0.0, 0.0, 0.0);
        if (i % 3 == 0) {
            for (int tries = 0; tries < 40 && plan.getActiveMesh()->getMeshBuffer(0)->getVertexCount() == 0; ++tries) {
                Delay(20);
                plan.Update(i % 2 == 0);
            }
            panel->OnProcedureNodesDelete();
            frame();
            panel->OnProcedureMeshExchanged();
        }
        frame();
        if (i % 7 == 6) {
            EXPECT_EQ(share(area, isBlue), 0.0) << i;
        }
        wasShown |= share(area, isBlue) > 0.0;
        EXPECT_EQ(share(scene, isMagenta), 0.0) << "it leads over to the next: blue";
    }
    EXPECT_TRUE(wasShown);
}

TEST_F(Map3DTest, turnsTheBankScaleWithTheHorizon) {
    makePanel();
    const auto isWhite = [](irr::video::SColor c) {
        return c.getRed() > 200 && c.getGreen() > 200 && c.getBlue() > 200;
    };
    const auto isWing = [](irr::video::SColor c) { return c.getRed() > 220 && c.getGreen() > 160 && c.getBlue() < 80; };
    const GlassSymbols symbols(Lens(width, height), area);
    const auto mark = [&](double degrees, double radii) {
        const double angle = degrees * radiansPerDegree, radius = radii * symbols.getArcRadius();
        const int x = static_cast<int>(width / 2.0 + radius * std::sin(angle));
        const int y = static_cast<int>(height / 2.0 - radius * std::cos(angle));
        return irr::core::rect<int>(x - 2, y - 2, x + 3, y + 3);
    };
    for (const double bank : {0.0, 25.0, -45.0}) {
        poseOf(30.0, 0.0, bank);
        frame();
        EXPECT_GT(share(mark(-bank, 1.06), isWhite), 0.7) << "the triangle at zero, " << bank;
        EXPECT_GT(share(mark(30.0 - bank, 1.0), isWhite), 0.1) << bank;
        EXPECT_EQ(share(mark(15.0 - bank, 1.06), isWhite), 0.0) << "no mark there, " << bank;
        EXPECT_GT(share(mark(0.0, 0.93), isWing), 0.7) << "the pointer stays, " << bank;
        for (const double side : {-90.0, 90.0})
            EXPECT_GT(share(mark(side, 0.4), isWing), 0.3) << "and so do the wings, " << bank;
    }
}

TEST_F(Map3DTest, survivesWhatSensorsMaySend) {
    saveFlatEarth(300);
    makePanel();
    const double nan = std::nan(""), infinite = std::numeric_limits<double>::infinity();
    const struct {
        ChartPosition place;
        double altitude, heading, pitch, bank;
    } states[] = {
        {{nan, 42.5}, 1000, 0, 0, 0},         {{1.5, infinite}, 1000, 0, 0, 0}, {{1.5, 42.5}, nan, 0, 0, 0},
        {{1.5, 42.5}, -infinite, 0, 0, 0},    {{1.5, 42.5}, 1000, nan, 0, 0},   {{1.5, 42.5}, 1000, 0, nan, 0},
        {{1.5, 42.5}, 1000, 0, 0, infinite},  {{1.5, 42.5}, 1000, 0, 3, 180},   {{1.5, 89.95}, 1000, 0, 0, 0},
        {{-179.9999, -89.95}, 1000, 0, 0, 0}, {{1.5, 42.5}, -500, 0, 0, 0},     {{720.0, 42.5}, 1e9, 0, 0, 0},
        {{1.5, 42.5}, 1000, 0, 90, 0},        {{1.5, 42.5}, 1000, 0, -90, 123}};
    for (const auto& state : states) {
        fly(state.place, state.altitude, state.heading, state.pitch, state.bank);
        terrain().Update();
        frame();
        panel->processEvent(irr::SEvent());
    }
    fly({1.5, 42.5}, 1000.0, 0.0, 0.0, 0.0);
    auto* traffic = sensor->put<Traffic_Data>(ISensorData::Traffic);
    for (uint32_t i = 0; i < 500; ++i) {
        auto element = std::make_unique<TrafficElement>();
        element->longitude = i == 0 ? nan : i == 1 ? -360.0 : 1.5 + 0.0002 * (i % 25);
        element->latitude = i == 2 ? 1e300 : 42.51 + 0.002 * (i / 25);
        element->altitude = i == 3 ? -100000 : i == 4 ? 2147483647 : 3000 + static_cast<int>(i);
        element->track = i == 5 ? std::numeric_limits<float>::quiet_NaN() : 90.0f;
        traffic->elements[i] = std::move(element);
    }
    frame("vision_traffic.png");
    const auto isTraffic = [](irr::video::SColor c) {
        return c.getBlue() > 220 && c.getRed() > 110 && c.getRed() < 160;
    };
    EXPECT_GT(share(area, isTraffic), 0.002);
}

TEST_F(Map3DTest, tellsNoDifferenceToAnAltitudeThatWasLost) {
    saveFlatEarth(300);
    makePanel();
    fly({1.5, 42.5}, 1000.0, 0.0, 0.0, 0.0);
    auto element = std::make_unique<TrafficElement>();
    element->longitude = 1.5;
    element->latitude = 42.53;
    element->altitude = 6000;
    sensor->put<Traffic_Data>(ISensorData::Traffic)->elements[1] = std::move(element);
    sensor->put<Pressure_Data>(ISensorData::OutsidePressure, 899.0, false, 1u);
    context->getSensorManager()->setForceAltimeterFallback(true);
    const auto isTraffic = [](irr::video::SColor c) {
        return c.getBlue() > 220 && c.getRed() > 110 && c.getRed() < 160 && c.getGreen() < 190;
    };
    const auto highest = [&] {
        frame();
        for (int y = 0; y < area.LowerRightCorner.Y; ++y)
            if (share({0, y, area.LowerRightCorner.X, y + 1}, isTraffic) > 0.0)
                return y;
        return area.LowerRightCorner.Y;
    };
    const int above = highest();
    sensor->levels[ISensorData::OutsidePressure] = ISensor::WRONG; // the height above the sea stays good
    EXPECT_GT(highest(), above + 20) << "stands at the own height, as one that tells none";
}

TEST_F(Map3DTest, followsFingersAndComesBack) {
    makePanel();
    frame();
    EXPECT_TRUE(panel->isFirstPerson());
    EXPECT_FALSE(offer(irr::EMIE_MOUSE_WHEEL, 100, 100, -1.0f));
    frame("vision_chase.png");
    EXPECT_FALSE(panel->isFirstPerson());
    EXPECT_TRUE(offer(irr::EMIE_MOUSE_WHEEL, 100, height + 5, -1.0f)) << "beside the panel";
    irr::gui::IGUIElement* root = gl.device()->getGUIEnvironment()->getRootGUIElement();
    const auto find = [root](const wchar_t* text) -> irr::gui::IGUIElement* {
        for (irr::gui::IGUIElement* child : root->getChildren())
            if (child->isVisible() && std::wcscmp(child->getText(), text) == 0)
                return child;
        return nullptr;
    };
    EXPECT_EQ(find(L"Center"), nullptr);
    offer(irr::EMIE_LMOUSE_PRESSED_DOWN, 100, 100);
    offer(irr::EMIE_LMOUSE_LEFT_UP, 102, 100);
    EXPECT_NE(find(L"Center"), nullptr);
    panel->OnPageChange();
    EXPECT_EQ(find(L"Center"), nullptr) << "on another page nothing is to be centred";
    offer(irr::EMIE_LMOUSE_PRESSED_DOWN, 100, 100);
    offer(irr::EMIE_LMOUSE_LEFT_UP, 102, 100);
    irr::gui::IGUIElement* center = find(L"Center");
    ASSERT_NE(center, nullptr);
    ASSERT_NE(find(L"Options"), nullptr);
    irr::SEvent click{};
    click.EventType = irr::EET_GUI_EVENT;
    click.GUIEvent.EventType = irr::gui::EGET_BUTTON_CLICKED;
    click.GUIEvent.Caller = center;
    EXPECT_FALSE(panel->processEvent(click));
    EXPECT_EQ(find(L"Center"), nullptr);
    frame();
    EXPECT_TRUE(panel->isFirstPerson());
}

TEST_F(Map3DTest, allocatesNextToNothingInASteadyFrame) {
    saveFlatEarth(500);
    makePanel();
    ASSERT_TRUE(waitForTerrain());
    for (int i = 0; i < 5; ++i)
        frame();
    gl.begin();
    const AllocationCounter allocations;
    panel->render(area);
    context->getDrawer()->flush();
    EXPECT_LE(allocations.count(), 20u);
    gl.end();
}

} // namespace
} // namespace skyvane

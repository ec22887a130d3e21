#include "core/Context.h"
#include "core/Factories.h"
#include "core/ini/IniFile.h"
#include "displays/IPanelFactory.h"
#include "displays/PanelManager.h"
#include "displays/drawing/Drawer2D.h"
#include "procedures/ProcedureManager.h"
#include "procedures/aircraft/AircraftManager.h"
#include "sensors/SensorFakes.h"
#include "sensors/records/Acceleration_Data.h"
#include "sensors/records/Altitude_Data.h"
#include "sensors/records/GPS_Data.h"
#include "sensors/records/GroundSpeed_Data.h"
#include "sensors/records/Heading_Data.h"
#include "sensors/records/TurnRate_Data.h"
#include "sensors/records/VerticalSpeed_Data.h"
#include "support/AllocationCounter.h"
#include "support/GlDevice.h"
#include "support/SourceFolder.h"
#include "support/StartAnswers.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <limits>
#include <stdlib.h>

namespace skyvane {
namespace {

using irr::core::rect;

enum Place {
    Turn = 1,
    Heading = 5,
    Field = 6,
    Lamp = 7,
    Slip = 10,
    Load = 11,
    Battery = 12,
    CheckLists = 13,
    Glider = 14,
    GlideInfo = 17
};

/// Panels as their factories make them, in the real context, fed by one sensor that a test writes to.
class PanelsTest : public testing::Test {
protected:
    static constexpr int width = 480, height = 320;

    void SetUp() override {
        if (!gl)
            GTEST_SKIP() << "no display";
        char folder[] = "/tmp/skyvane_instruments_XXXXXX";
        ASSERT_TRUE(mkdtemp(folder));
        home = folder;
        answerStartQuestions(folder);
        const std::string media = builtMedia();
        std::filesystem::create_directory_symlink(media, home + "/media");
        context = std::make_unique<Context>(gl.device(), (home + "/skyvane").c_str(), false);
        IniFile fonts;
        context->getPanelManager()->loadFontSettingsFromIni(&fonts);
        registerPanelFactories(*context, *context->getPanelManager());
        loadSensors();
    }
    void TearDown() override {
        panels.clear();
        context.reset();
        std::error_code ignored;
        std::filesystem::remove_all(home, ignored);
    }
    /// The textures are made of the drawings when building; beside the tests.
    static std::string builtMedia() {
        return std::filesystem::read_symlink("/proc/self/exe").parent_path().parent_path().string() + "/media";
    }
    void loadSensors() {
        SensorManager& sensors = *context->getSensorManager();
        sensors.setBatteryFolder(home);
        addStandardDataFactories(sensors);
        sensors.addSensorFactory(std::make_unique<FakeSensorFactory>());
        IniFile ini;
        ini.setFromString("SensorCount = 2\nD0 = 1\nD2 = 1\nD3 = 1\nD4 = 1\nD5 = 1\nD6 = 1\nD7 = 1\nD8 = "
                          "1\n[S1]\nFactoryIndex = 0\n");
        sensors.loadSensorSettingsFromIni(&ini, false);
        sensor = dynamic_cast<FakeSensor*>(sensors.getSensorInterface(1));
        ASSERT_NE(sensor, nullptr);
        sensor->put<Heading_Data>(ISensorData::Heading, 123.0, 1u);
        sensor->put<TurnRate_Data>(ISensorData::TurnRate, -3.0, 1u);
        sensor->put<Acceleration_Data>(ISensorData::Acceleration, 1.5, -14.0, 0.0, 1u);
        sensor->put<Altitude_Data>(ISensorData::Altitude, 1000.0, 1u);
        sensor->put<GroundSpeed_Data>(ISensorData::GroundSpeed, 90.0, 1u);
        sensor->put<VerticalSpeed_Data>(ISensorData::VerticalSpeed, -2.0, 1u);
    }
    IPanel& add(Place place, const rect<int>& area, const std::string& type = "") {
        IPanelFactory& factory = *context->getPanelManager()->getPanelFactories().at(static_cast<size_t>(place));
        IniFile ini;
        if (!type.empty())
            ini.set("P0", "Type", type);
        factory.loadSetupFromIni(&ini, "P0");
        panels.push_back(factory.Create());
        areas.push_back(area);
        EXPECT_EQ(panels.back()->getFactory(), &factory);
        return *panels.back();
    }
    void addAll() {
        add(Turn, {0, 0, 160, 160});
        add(Load, {160, 0, 320, 160});
        add(Slip, {320, 0, 480, 60});
        add(Field, {320, 60, 400, 110}, "HEADING");
        add(Field, {400, 60, 480, 110}, "ALTITUDE");
        add(Battery, {320, 110, 420, 160});
        add(Lamp, {420, 110, 480, 160});
        add(Field, {0, 160, 120, 240}, "DATE");
        add(Lamp, {120, 160, 200, 240}, "SPEED");
        add(Glider, {200, 160, 340, 320});
        add(GlideInfo, {340, 160, 480, 240});
    }
    void drawPanels() {
        for (size_t i = 0; i < panels.size(); ++i)
            panels[i]->render(areas[i]);
        context->getDrawer()->flush();
    }
    void frame(const char* picture = nullptr) {
        gl.begin(irr::video::SColor(0xff101418));
        drawPanels();
        gl.end();
        if (picture)
            gl.savePicture(picture);
    }
    template <class Test>
    double share(const rect<int>& area, Test test) const {
        int hits = 0;
        for (int y = area.UpperLeftCorner.Y; y < area.LowerRightCorner.Y; ++y)
            for (int x = area.UpperLeftCorner.X; x < area.LowerRightCorner.X; ++x)
                hits += test(gl.pixel(x, y)) ? 1 : 0;
        return static_cast<double>(hits) / area.getArea();
    }
    static bool isRed(irr::video::SColor c) { return c.getRed() > 170 && c.getGreen() < 80 && c.getBlue() < 90; }
    static bool isYellow(irr::video::SColor c) { return c.getRed() > 190 && c.getGreen() > 160 && c.getBlue() < 90; }
    static bool isGreen(irr::video::SColor c) { return c.getGreen() > 180 && c.getRed() < 90 && c.getBlue() < 90; }
    static bool mouse(IPanel& panel, irr::EMOUSE_INPUT_EVENT kind, int x, int y) {
        irr::SEvent event{};
        event.EventType = irr::EET_MOUSE_INPUT_EVENT;
        event.MouseInput.Event = kind;
        event.MouseInput.X = x;
        event.MouseInput.Y = y;
        return panel.processEvent(event);
    }
    size_t boxes() const { return gl.device()->getGUIEnvironment()->getRootGUIElement()->getChildren().getSize(); }

    GlDevice gl{width, height};
    std::string home;
    std::unique_ptr<Context> context;
    FakeSensor* sensor = nullptr;
    std::vector<std::unique_ptr<IPanel>> panels;
    std::vector<rect<int>> areas;
};

TEST_F(PanelsTest, trustIsSeenOnEveryPanelWithAValue) {
    addAll();
    frame("good.png");
    for (int i : {0, 1, 2, 3, 4, 9, 10})
        EXPECT_EQ(share(areas[i], isRed), 0.0) << i;
    sensor->level = ISensor::MAYBE_WRONG;
    frame("doubtful.png");
    for (int i : {0, 1, 2, 3, 4, 9, 10}) {
        EXPECT_GT(share(areas[i], isYellow), 0.01) << i;
        EXPECT_EQ(share(areas[i], isRed), 0.0) << i;
    }
    sensor->level = ISensor::WRONG;
    frame("failed.png");
    for (int i : {0, 1, 2, 3, 4, 7, 9, 10})
        EXPECT_GT(share(areas[i], isRed), 0.01) << i;
}

TEST_F(PanelsTest, aTurnRateWithoutAccelerationCrossesTheTubeAlone) {
    add(Turn, {0, 0, 160, 160});
    sensor->records.erase(ISensorData::Acceleration);
    frame("no-ball.png");
    EXPECT_GT(share({30, 105, 130, 130}, isRed), 0.05);
    EXPECT_EQ(share({0, 0, 160, 100}, isRed), 0.0);
}

TEST_F(PanelsTest, theSlipMarkerGoesToTheSideOfTheBall) {
    add(Slip, {0, 0, 474, 90});
    const auto isWhite = [](irr::video::SColor c) { return c.getRed() > 235 && c.getGreen() > 235; };
    sensor->put<Acceleration_Data>(ISensorData::Acceleration, 8.0, -6.0, 0.0, 1u); // a = 0.8
    frame("slip.png");
    const rect<int> around(400, 0, 454, 38);
    EXPECT_GT(share(around, isWhite), 0.3);
    sensor->put<Acceleration_Data>(ISensorData::Acceleration, -8.0, -6.0, 0.0, 1u);
    frame();
    EXPECT_EQ(share(around, isWhite), 0.0);
}

/// Leads east from 50 N 10 E.
class EastProcedure : public IProcedure {
public:
    EastProcedure() : IProcedure(nullptr) {
        CourseList list(2);
        list.front().position = {10.0, 50.0};
        list.back().position = {11.0, 50.0};
        setCourseList(list);
    }
    void calculateCourseList(ChartPosition, double, double) override {}
    std::string getName() override { return "East"; }
    Type getType() override { return Direct; }
};

TEST_F(PanelsTest, theBearingOfThePlanIsMarkedOnlyWhereItIsKnown) {
    const rect<int> area(0, 0, 160, 160);
    const auto isMagenta = [](irr::video::SColor c) {
        return c.getRed() > 200 && c.getBlue() > 200 && c.getGreen() < 130;
    };
    add(Heading, area);
    sensor->put<Heading_Data>(ISensorData::Heading, 0.0, 1u);
    context->getProcedureManager()->addProcedure(std::make_unique<EastProcedure>());
    IProcedure* procedure = context->getCurrentProcedure();
    frame();
    EXPECT_EQ(0.0, share(area, isMagenta)) << "nobody has told a position yet";
    procedure->updatePosRelated({10.0, 50.0}, 1000.0, 90.0, 0.0);
    frame("bearing.png");
    EXPECT_GT(share({130, 60, 160, 100}, isMagenta), 0.02);
    procedure->updatePosRelated({}, std::numeric_limits<double>::quiet_NaN(), 0.0, 0.0);
    frame();
    EXPECT_EQ(0.0, share(area, isMagenta)) << "the position is lost";
}

TEST_F(PanelsTest, theBatteryFillsFromTheLeftInItsColour) {
    add(Battery, {0, 0, 215, 100});
    std::ofstream(home + "/capacity") << "90\n";
    std::ofstream(home + "/status") << "Charging\n";
    context->getSensorManager()->Update();
    frame("battery.png");
    EXPECT_GT(share({20, 20, 60, 80}, isGreen), 0.5);
    EXPECT_EQ(share({196, 0, 215, 100}, isGreen), 0.0);
}

TEST_F(PanelsTest, tapsOnLampAndBatteryOpenTheirDetails) {
    IPanel& lamp = add(Lamp, {0, 0, 100, 80}); // drawn in 10..90
    IPanel& battery = add(Battery, {100, 0, 300, 80});
    IPanel& other = add(Lamp, {0, 100, 100, 180}, "SPEED");
    frame();
    const size_t before = boxes();
    EXPECT_TRUE(mouse(lamp, irr::EMIE_LMOUSE_PRESSED_DOWN, 5, 40)) << "beside the lamp";
    EXPECT_TRUE(mouse(other, irr::EMIE_LMOUSE_PRESSED_DOWN, 50, 140));
    EXPECT_TRUE(mouse(other, irr::EMIE_LMOUSE_LEFT_UP, 50, 140));
    EXPECT_EQ(boxes(), before);
    EXPECT_FALSE(mouse(lamp, irr::EMIE_LMOUSE_PRESSED_DOWN, 50, 40));
    EXPECT_FALSE(mouse(lamp, irr::EMIE_LMOUSE_LEFT_UP, 50, 40));
    EXPECT_EQ(boxes(), before + 1);
    EXPECT_FALSE(mouse(battery, irr::EMIE_LMOUSE_PRESSED_DOWN, 200, 40));
    EXPECT_FALSE(mouse(battery, irr::EMIE_LMOUSE_LEFT_UP, 200, 40));
    EXPECT_EQ(boxes(), before + 2);
}

TEST_F(PanelsTest, aSteadyFrameAllocatesNothing) {
    addAll();
    frame();
    frame();
    gl.begin();
    const AllocationCounter counter;
    drawPanels();
    EXPECT_EQ(counter.count(), 0u);
    gl.end();
}

/// The checklist panel shows elements of the GUI; lines of every kind.
class CheckListPanelTest : public PanelsTest {
protected:
    void show(const std::list<std::string>& lines, const rect<int>& area) {
        context->getAircraftManager()->getCurrentAircraft().checklists = {{"Start", lines}};
        context->getAircraftManager()->saveAircrafts();
        if (panels.empty())
            add(CheckLists, area);
        areas[0] = area;
        drawAll();
    }
    size_t allocationsOfAFrame() {
        drawAll();
        gl.begin();
        const AllocationCounter counter;
        drawPanels();
        gl.device()->getGUIEnvironment()->drawAll();
        const size_t count = counter.count();
        gl.end();
        return count;
    }
    void drawAll() {
        gl.begin(irr::video::SColor(0xff101418));
        drawPanels();
        gl.device()->getGUIEnvironment()->drawAll();
        context->getDrawer()->flush();
        gl.end();
    }
};

TEST_F(CheckListPanelTest, linesOfAnyLengthAreShownAndASteadyFrameAllocatesNothing) {
    const std::string longWord(100000, 'x'), broken = "Z\xc3\xbcndung \xc3\x28 \xff\xfe an";
    std::list<std::string> lines{"", "Fuel on", longWord, broken};
    for (int i = 0; i < 5000; ++i)
        lines.push_back("Item " + std::to_string(i));
    // The engine's buttons and boxes copy their texts in each frame; the items add nothing to that.
    show({"Fuel on"}, {0, 0, width, height});
    const size_t engines = allocationsOfAFrame();
    show(lines, {0, 0, width, height});
    gl.savePicture("checklist.png");
    EXPECT_EQ(allocationsOfAFrame(), engines);
}

TEST_F(CheckListPanelTest, followsWhatIsChangedElsewhere) {
    AircraftManager& aircrafts = *context->getAircraftManager();
    show({"Fuel on"}, {0, 0, width, height});
    const int other = aircrafts.addAircraft(Aircraft());
    aircrafts.getAircraft(other)->checklists = {{"Glide", {"Wheel down", "Flaps"}}};
    aircrafts.saveAircrafts();
    drawAll();
    aircrafts.removeAircraft(other);
    aircrafts.getCurrentAircraft().checklists.clear();
    aircrafts.saveAircrafts();
    drawAll();
    for (const rect<int>& area : {rect<int>(0, 0, 0, 0), rect<int>(5, 5, 6, 6), rect<int>(0, 0, 3, 300),
                                  rect<int>(-5000, -5000, 90000, -4000), rect<int>(0, 0, 480, 2)})
        show({"Fuel on", "Brakes"}, area);
    panels[0]->OnHideGUI();
    panels[0]->OnPageChange();
}

TEST_F(PanelsTest, absurdRectanglesAreHarmless) {
    addAll();
    for (const rect<int>& area : {rect<int>(0, 0, 0, 0), rect<int>(5, 5, 6, 6), rect<int>(0, 0, 3, 300),
                                  rect<int>(-5000, -5000, 90000, -4000), rect<int>(0, 0, 480, 2)}) {
        areas.assign(panels.size(), area);
        frame();
    }
}

TEST_F(PanelsTest, previewsAreDrawn) {
    const auto isLit = [](irr::video::SColor c) { return c.getRed() + c.getGreen() + c.getBlue() > 300; };
    gl.begin();
    int x = 0;
    for (Place place : {Turn, Field, Lamp, Slip, Load, Battery, Glider, GlideInfo}) {
        IPanelFactory& factory = *context->getPanelManager()->getPanelFactories().at(static_cast<size_t>(place));
        IniFile ini;
        factory.loadSetupFromIni(&ini, "P0");
        factory.renderPreview({x, 0, x + 60, 60});
        x += 60;
    }
    context->getDrawer()->flush();
    gl.end();
    gl.savePicture("previews.png");
    for (x = 0; x < width; x += 60)
        EXPECT_GT(share({x, 0, x + 60, 60}, isLit), 0.02) << x;
}

} // namespace
} // namespace skyvane

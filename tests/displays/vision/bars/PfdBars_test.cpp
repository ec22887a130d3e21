#include "core/Context.h"
#include "core/ini/IniFile.h"
#include "displays/PanelManager.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/vision/bars/PfdBars.h"
#include "displays/visionmath/PfdReadings.h"
#include "displays/visionmath/bars/PfdLayout.h"
#include "support/AllocationCounter.h"
#include "support/GlDevice.h"
#include "support/StartAnswers.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <stdlib.h>

namespace skyvane {
namespace {

using irr::core::rect;
using irr::video::SColor;

/// The bars of a panel over sky and ground, fed with values.
class BarRig {
public:
    BarRig(int width, int height) : gl(static_cast<unsigned>(width), static_cast<unsigned>(height)) {
        settings.barColor = 0x40808080;
        panel = {0, 0, width, height};
        if (!gl)
            return;
        char folder[] = "/tmp/skyvane_bars_XXXXXX";
        home = mkdtemp(folder);
        answerStartQuestions(home);
        const auto build = std::filesystem::read_symlink("/proc/self/exe").parent_path().parent_path();
        std::filesystem::create_directory_symlink(build / "media", home + "/media");
        context = std::make_unique<Context>(gl.device(), (home + "/skyvane").c_str(), false);
        IniFile fonts;
        context->getPanelManager()->loadFontSettingsFromIni(&fonts);
        fly();
    }
    ~BarRig() {
        bars.reset();
        context.reset();
        std::error_code ignored;
        std::filesystem::remove_all(home, ignored);
    }

    /// A climb at 104 knots, 12,345 feet.
    void fly() {
        readings.airSpeedKnots = {104.0, DialFlag::Good};
        readings.hasAirSpeed = true;
        readings.groundSpeedKnots = {98.0, DialFlag::Good};
        readings.speeds.greenStart = 48;
        readings.speeds.red = 163;
        readings.speeds.greenEnd = 129;
        readings.altitudeMetres = {12345.0 * 0.3048, DialFlag::Good};
        readings.seaLevelHeightMetres = readings.altitudeMetres;
        readings.groundMetres = 11200.0 * 0.3048;
        readings.verticalSpeedMetres = {3.3, DialFlag::Good};
        readings.headingDegrees = {352.0, DialFlag::Good};
        readings.trackDegrees = 356.0;
        readings.bearingDegrees = 4.0;
        readings.nextFix.nauticalMiles = 12.3;
        readings.nextFix.seconds = 754;
        readings.nextFix.name = L"LESU";
    }
    void failAll(DialFlag flag) {
        for (auto* each : {&readings.airSpeedKnots, &readings.altitudeMetres, &readings.verticalSpeedMetres,
                           &readings.headingDegrees, &readings.groundSpeedKnots, &readings.seaLevelHeightMetres})
            each->flag = flag;
        readings.angleOfAttack.flag = readings.nextFix.flag = flag;
    }
    void draw(const char* picture = nullptr) {
        if (!bars)
            bars = std::make_unique<PfdBars>(context.get(), settings);
        gl.begin(sky);
        const int middle = panel.getCenter().Y;
        context->getDrawer()->drawFilledRect({0, middle, panel.getWidth(), panel.getHeight()}, field);
        context->getDrawer()->flush();
        render();
        gl.end();
        if (picture)
            gl.savePicture(picture);
    }
    void render() {
        bars->render(panel, readings);
        context->getDrawer()->flush();
    }
    static inline const SColor sky{0xff6fa3dc}, field{0xff7c8f4e};

    PfdLayout layout() const { return PfdLayout(panel, settings); }
    template <class Test>
    double share(const ShapeRect& area, Test test) const {
        int hits = 0, all = 0;
        for (int y = static_cast<int>(area.UpperLeftCorner.Y); y < static_cast<int>(area.LowerRightCorner.Y); ++y)
            for (int x = static_cast<int>(area.UpperLeftCorner.X); x < static_cast<int>(area.LowerRightCorner.X); ++x) {
                hits += test(gl.pixel(x, y)) ? 1 : 0;
                ++all;
            }
        return all > 0 ? static_cast<double>(hits) / all : 0.0;
    }

    GlDevice gl;
    rect<int> panel;
    VisionSettings settings;
    PfdReadings readings;
    std::string home;
    std::unique_ptr<Context> context;
    std::unique_ptr<PfdBars> bars;
};

bool isRed(SColor c) {
    return c.getRed() > 190 && c.getGreen() < 70 && c.getBlue() < 80;
}
bool isYellow(SColor c) {
    return c.getRed() > 200 && c.getGreen() > 170 && c.getBlue() < 90;
}
bool isGreen(SColor c) {
    return c.getGreen() > 220 && c.getRed() < 60 && c.getBlue() < 60;
}
bool isWhite(SColor c) {
    return c.getRed() > 220 && c.getGreen() > 220 && c.getBlue() > 220;
}
bool isBug(SColor c) {
    return c.getRed() > 220 && c.getGreen() < 110 && c.getBlue() > 220;
}

/// Where a value stands on an upright tape.
double rowOf(const ShapeRect& tape, double value, double range, double mark) {
    return middleY(tape) - (mark - value) / range * tape.getHeight();
}
ShapeRect around(double x, double y, double half) {
    return {x - half, y - half, x + half, y + half};
}
ShapeRect leftPart(const ShapeRect& area, double from, double to) {
    const double left = area.UpperLeftCorner.X, width = area.getWidth();
    return {left + from * width, area.UpperLeftCorner.Y, left + to * width, area.LowerRightCorner.Y};
}

TEST(PfdBars, TapesStandWhereTheirValuesAre) {
    BarRig rig(1280, 685);
    if (!rig.gl)
        GTEST_SKIP() << "no display";
    rig.draw("wide_good.png");
    const PfdLayout layout = rig.layout();
    const double edge = layout.speed.LowerRightCorner.X - 4.0;
    const auto speedRow = [&](double mark) { return rowOf(layout.speed, 104.0, 40.0, mark); };
    EXPECT_TRUE(isGreen(rig.gl.pixel(static_cast<int>(edge), static_cast<int>(speedRow(110.0)))));
    const double inner = layout.speed.LowerRightCorner.X - 0.05 * layout.barWidth;
    EXPECT_TRUE(isWhite(rig.gl.pixel(static_cast<int>(inner), static_cast<int>(speedRow(98.0))))) << "flap range";
    EXPECT_FALSE(isWhite(rig.gl.pixel(static_cast<int>(inner), static_cast<int>(speedRow(112.0)))));
    // A mark at each ten, none a third between.
    const double markX = layout.speed.LowerRightCorner.X - 0.07 * layout.barWidth - 0.5 * layout.shortMark;
    for (const double mark : {90.0, 95.0, 110.0, 115.0, 120.0})
        EXPECT_GT(rig.share(around(markX, speedRow(mark), 3.0), isWhite), 0.1) << mark;
    EXPECT_EQ(rig.share(around(markX, speedRow(112.5), 3.0), isWhite), 0.0);
    const double altitudeX = layout.altitude.UpperLeftCorner.X + 0.02 * layout.barWidth + 0.5 * layout.shortMark;
    for (const double mark : {12200.0, 12220.0, 12400.0, 12500.0})
        EXPECT_GT(rig.share(around(altitudeX, rowOf(layout.altitude, 12345.0, 400.0, mark), 3.0), isWhite), 0.1)
            << mark;
    const double bugX = middleX(layout.track) + 12.0 / 40.0 * layout.track.getWidth();
    EXPECT_GT(rig.share(around(bugX, layout.track.LowerRightCorner.Y - 6.0, 3.0), isBug), 0.8);
    EXPECT_EQ(rig.share(around(bugX - 30.0, layout.track.LowerRightCorner.Y - 6.0, 3.0), isBug), 0.0);

    rig.readings.bearingDegrees = 250.0;
    rig.draw();
    EXPECT_GT(rig.share(leftPart(layout.track, 0.0, 0.06), isBug), 0.03) << "at the left edge";
    EXPECT_EQ(rig.share(leftPart(layout.track, 0.07, 1.0), isBug), 0.0);
}

TEST(PfdBars, TrustIsSeenOnEachTape) {
    BarRig rig(1280, 685);
    if (!rig.gl)
        GTEST_SKIP() << "no display";
    rig.readings.hasAngleOfAttack = true;
    rig.readings.angleOfAttack = {{0.2, 1.0, true}, DialFlag::Good};
    rig.draw();
    const PfdLayout layout = rig.layout();
    const ShapeRect bars[] = {layout.speed, layout.altitude, layout.vertical, layout.track};
    for (const ShapeRect& bar : bars) {
        EXPECT_EQ(rig.share(bar, isRed), 0.0);
        EXPECT_EQ(rig.share(bar, isYellow), 0.0);
        EXPECT_GT(rig.share(bar, isWhite), 0.01);
    }
    rig.failAll(DialFlag::Doubtful);
    rig.draw("wide_doubtful.png");
    for (const ShapeRect& bar : bars) {
        EXPECT_GT(rig.share(bar, isYellow), 0.015);
        EXPECT_EQ(rig.share(leftPart(bar, 0.0, 0.9), isWhite), 0.0) << "the arcs keep their colours";
    }
    rig.failAll(DialFlag::Failed);
    rig.draw("wide_failed.png");
    for (const ShapeRect& bar : bars) {
        EXPECT_GT(rig.share(bar, isRed), 0.03);
        EXPECT_EQ(rig.share(bar, isWhite), 0.0) << "nothing that could be read";
        EXPECT_EQ(rig.share(bar, isYellow), 0.0);
    }
    EXPECT_EQ(rig.share(leftPart(layout.trackHead, 0.4, 0.6), isWhite), 0.0) << "no heading above the band";
    EXPECT_GT(rig.share(layout.angleOfAttack, isRed), 0.1);
}

TEST(PfdBars, SteadyFramesAllocateNothing) {
    BarRig rig(800, 449);
    if (!rig.gl)
        GTEST_SKIP() << "no display";
    const auto step = [&](int i) {
        rig.readings.airSpeedKnots.value = 97.0 + 0.37 * i;
        rig.readings.altitudeMetres.value = 3040.0 + 1.9 * i;
        rig.readings.verticalSpeedMetres.value = 1.9;
        rig.readings.headingDegrees.value = 350.0 + 0.7 * i;
    };
    for (int i = 0; i < 60; ++i) {
        step(i);
        rig.draw();
    }
    for (int i = 0; i < 60; ++i) {
        step(i);
        rig.gl.begin();
        const AllocationCounter counter;
        rig.render();
        EXPECT_EQ(counter.count(), 0u) << i;
        rig.gl.end();
    }
}

/// Of the values that the tests below draw, each on panels of four shapes.
struct Situation {
    const char* name;
    void (*arrange)(BarRig& rig);
};
const Situation situations[] = {
    {"cruise", [](BarRig&) {}},
    {"metric",
     [](BarRig& rig) {
         rig.readings.metric = true;
         rig.readings.hasAngleOfAttack = true;
         rig.readings.angleOfAttack = {{0.7, 1.0, true}, DialFlag::Good};
         rig.readings.bearingDegrees = 90.0;
     }},
    {"ground",
     [](BarRig& rig) {
         rig.readings.airSpeedKnots.value = 8.0;
         rig.readings.groundSpeedKnots.value = 9.6;
         rig.readings.altitudeMetres.value = rig.readings.seaLevelHeightMetres.value = -11.0 * 0.3048;
         rig.readings.groundMetres = -100.0 * 0.3048;
         rig.readings.verticalSpeedMetres.value = 0.0;
         rig.readings.bearingDegrees = 180.0;
         rig.readings.headingDegrees.value = 359.7;
     }},
    {"fast",
     [](BarRig& rig) {
         rig.readings.airSpeedKnots.value = 159.6;
         rig.readings.altitudeMetres.value = 9992.0 * 0.3048;
         rig.readings.verticalSpeedMetres.value = -12.0;
         rig.readings.isSatelliteAltitude = true;
     }},
    {"simulated",
     [](BarRig& rig) {
         rig.failAll(DialFlag::Simulated);
         rig.settings.renderTrueMagHeading = true;
         rig.readings.magneticDegrees = 350.0;
         rig.readings.airSpeedKnots.value = 168.0;
     }},
    {"failed", [](BarRig& rig) { rig.failAll(DialFlag::Failed); }},
};

TEST(PfdBars, LeaveTheSceneWhatTheySay) {
    const struct {
        int width, height;
        const char* name;
    } shapes[] = {{1280, 685, "wide"}, {720, 1233, "tall"}, {640, 685, "half"}, {800, 449, "small"}};
    for (const auto& shape : shapes) {
        BarRig rig(shape.width, shape.height);
        if (!rig.gl)
            GTEST_SKIP() << "no display";
        for (const Situation& situation : situations) {
            SCOPED_TRACE(std::string(shape.name) + " " + situation.name);
            rig.readings = PfdReadings();
            rig.fly();
            situation.arrange(rig);
            rig.bars.reset();
            rig.draw((std::string(shape.name) + "_" + situation.name + ".png").c_str());
            const rect<int> free = rig.bars->getFreeRect(rig.panel);
            const ShapeRect area(free.UpperLeftCorner.X, free.UpperLeftCorner.Y, free.LowerRightCorner.X,
                                 free.LowerRightCorner.Y);
            const auto isScene = [](SColor c) { return c == BarRig::sky || c == BarRig::field; };
            EXPECT_EQ(rig.share(area, isScene), 1.0);
            EXPECT_LT(rig.share(rig.layout().speed, isScene), 0.01);
        }
    }
}

} // namespace
} // namespace skyvane

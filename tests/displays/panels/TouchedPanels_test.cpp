#include "core/Factories.h"
#include "core/engine/TouchTranslator.h"
#include "core/ini/IniFile.h"
#include "displays/PanelManager.h"
#include "displays/layout/OverlayPlaces.h"
#include "gui/menu/MenuBar.h"
#include "gui/windows/DialogFixture.h"
#include "sensors/SensorFakes.h"
#include "sensors/SensorManager.h"
#include "sensors/records/Heading_Data.h"

namespace skyvane {
namespace {

using irr::core::position2di;

/// What a pilot can touch on a page, in the real program's frames: by mouse, and by a finger as the window system tells
/// it.
class TouchedPanels : public DialogFixture {
protected:
    enum Way { Mouse, Finger };

    void SetUp() override {
        DialogFixture::SetUp();
        if (!context)
            return;
        panels = context->getPanelManager();
        registerPanelFactories(*context, *panels);
        loadSensors();
        IniFile config;
        config.setFromString("optimized = 0\nPanelCount = 3\n");
        addPanel(config, 0, "7", lamp);
        addPanel(config, 1, "12", battery);
        addPanel(config, 2, "5", compass);
        panels->loadPanelSettingsFromIni(&config, nullptr, false, false);
        frame(2);
    }
    void loadSensors() {
        SensorManager& sensors = *context->getSensorManager();
        sensors.setBatteryFolder(home);
        addStandardDataFactories(sensors);
        sensors.addSensorFactory(std::make_unique<FakeSensorFactory>());
        IniFile ini;
        ini.setFromString("SensorCount = 2\nD2 = 1\n[S1]\nFactoryIndex = 0\n");
        sensors.loadSensorSettingsFromIni(&ini, false);
        auto* sensor = dynamic_cast<FakeSensor*>(sensors.getSensorInterface(1));
        ASSERT_NE(nullptr, sensor);
        sensor->put<Heading_Data>(ISensorData::Heading, 0.0, 1u);
    }
    void addPanel(IniFile& config, int number, const char* factory, const PanelFractions& place) {
        const std::string section = "P" + std::to_string(number);
        config.set(section, "FactoryIndex", factory);
        config.set(section, "Portrait", context->isPortrait() ? "1" : "0");
        writeFractions(config, section, place);
    }
    void frame(int count = 1) {
        for (int i = 0; i < count; ++i)
            ASSERT_TRUE(frames->runFrame(nullptr));
    }
    void tell(Way way, RawTouch::Kind kind, position2di at) {
        if (way == Mouse)
            return post(kind == RawTouch::Begin ? irr::EMIE_LMOUSE_PRESSED_DOWN
                        : kind == RawTouch::End ? irr::EMIE_LMOUSE_LEFT_UP
                                                : irr::EMIE_MOUSE_MOVED,
                        at);
        const TouchTranslator::Events events = translator.translate({kind, finger, at.X, at.Y, true});
        for (std::size_t i = 0; i < events.count; ++i)
            gl.device()->postEventFromUser(events.list[i]);
        finger += kind == RawTouch::End ? 1 : 0;
    }
    void drag(Way way, position2di from, position2di to) {
        tell(way, RawTouch::Begin, from);
        frame();
        tell(way, RawTouch::Update, to);
        frame();
        tell(way, RawTouch::End, to);
        frame(2);
    }
    void tap(Way way, position2di at) { drag(way, at, at); }
    irr::core::recti rectOf(const PanelFractions& place) {
        return panelRect(place, MenuBar::panelArea(context->getScreenMetrics()));
    }
    /// The middle of the pixels of the heading bug, from the middle of the compass.
    position2di bug() {
        gl.grab();
        const irr::core::recti rect = rectOf(compass);
        position2di sum(0, 0);
        int count = 0;
        for (int y = rect.UpperLeftCorner.Y; y < rect.LowerRightCorner.Y; ++y)
            for (int x = rect.UpperLeftCorner.X; x < rect.LowerRightCorner.X; ++x) {
                const irr::video::SColor c = gl.pixel(x, y);
                if (c.getRed() < 200 || c.getGreen() < 90 || c.getGreen() > 160 || c.getBlue() > 60)
                    continue;
                sum += position2di(x, y) - rect.getCenter();
                ++count;
            }
        EXPECT_GT(count, 20) << "no bug to be seen";
        return count ? position2di(sum.X / count, sum.Y / count) : sum;
    }

    const PanelFractions lamp{0.0, 0.0, 0.3, 0.4}, battery{0.3, 0.0, 0.6, 0.3}, compass{0.0, 0.4, 0.6, 1.0};
    TouchTranslator translator;
    unsigned finger = 1;
    PanelManager* panels = nullptr;
};

TEST_P(TouchedPanels, LampAndBatteryTellTheirDetails) {
    const std::pair<PanelFractions, const wchar_t*> taps[] = {{lamp, L"Sensor Details:"},
                                                              {battery, L"Battery Status: unknown"}};
    for (const Way way : {Mouse, Finger})
        for (const auto& [place, words] : taps) {
            const irr::core::recti rect = rectOf(place);
            drag(way, rect.getCenter(), rectOf(compass).getCenter());
            EXPECT_FALSE(isShown(L"Ok")) << "a finger that slides off";
            tap(way, rect.getCenter());
            ASSERT_TRUE(isShown(L"Ok"));
            EXPECT_EQ(0u, told().find(words)) << irr::core::stringc(told().c_str()).c_str();
            picture("touched-details");
            tap(way, findText(root, L"Ok")->getAbsolutePosition().getCenter());
            EXPECT_FALSE(isShown(L"Ok"));
        }
}

TEST_P(TouchedPanels, TheHeadingBugFollowsTheFinger) {
    const position2di middle = rectOf(compass).getCenter();
    const int reach = std::min(rectOf(compass).getWidth(), rectOf(compass).getHeight()) / 4;
    for (const Way way : {Mouse, Finger}) {
        tap(way, middle + position2di(reach, 0));
        EXPECT_GT(bug().X, reach);
        EXPECT_NEAR(0, bug().Y, reach / 4);
        drag(way, middle + position2di(0, -reach), middle + position2di(0, reach));
        picture("touched-bug");
        EXPECT_GT(bug().Y, reach);
        EXPECT_NEAR(0, bug().X, reach / 4);
        tap(way, {static_cast<int>(GetParam().Width) - 3, 3});
        EXPECT_GT(bug().Y, reach) << "a tap beside moves nothing";
    }
}

/// But for a shade: a pane may be drawn a step lighter under another fraction of a pixel.
bool isAlike(irr::video::SColor a, irr::video::SColor b) {
    const auto differ = [](irr::u32 one, irr::u32 other) { return one > other + 8 || other > one + 8; };
    return !differ(a.getRed(), b.getRed()) && !differ(a.getGreen(), b.getGreen()) && !differ(a.getBlue(), b.getBlue());
}

TEST_P(TouchedPanels, InstrumentsOverTheManualGiveWayAndComeBack) {
    const position2di screen(static_cast<int>(GetParam().Width), static_cast<int>(GetParam().Height));
    OverlayPlaces places({screen.X, screen.Y}, context->getRecommendedButtonHeight());
    places.setManualOpen(true);
    const position2di large = places.getPlace(OverlayPlaces::Compass).getCenter();
    places.press(large);
    ASSERT_TRUE(places.release(large));
    const position2di small = places.getPlace(OverlayPlaces::Compass).getCenter();
    const auto look = [&] {
        gl.grab();
        return std::pair(gl.pixel(large.X, large.Y), gl.pixel(small.X, small.Y));
    };
    panels->setManualVisible();
    frame(3);
    const auto before = look();
    for (const Way way : {Mouse, Finger}) {
        tap(way, large);
        picture("overlays-small");
        EXPECT_NE(before.first, look().first);
        EXPECT_NE(before.second, look().second);
        drag(way, small, {5, 5});
        EXPECT_NE(before, look()) << "a finger that slides off";
        tap(way, small);
        picture("overlays");
        EXPECT_TRUE(isAlike(before.first, look().first));
        EXPECT_TRUE(isAlike(before.second, look().second));
        EXPECT_TRUE(panels->isManualVisible());
    }
}

INSTANTIATE_TEST_SUITE_P(Screens, TouchedPanels, allScreens());

} // namespace
} // namespace skyvane

#include "gui/menu/Menu.h"

#include "core/engine/TouchEvents.h"
#include "core/engine/TouchTranslator.h"
#include "core/ini/IniFile.h"
#include "displays/PanelManager.h"
#include "gui/menu/MenuFixture.h"
#include "gui/menu/MenuRow.h"
#include "procedures/aircraft/AircraftManager.h"
#include "sensors/SensorManager.h"
#include "sensors/records/Pressure_Data.h"

namespace skyvane {
namespace {

class SeekableProbe : public ISeekableSensor {
public:
    std::string getName() override { return "probe"; }
    bool Update() override { return false; }
    bool lastTimeUpdated(ISensorData::Type) override { return false; }
    ISensorData* getData(ISensorData::Type) override { return nullptr; }
    bool isDataTypeSupported(ISensorData::Type) override { return false; }
    std::vector<ISensorData::Type> getSupportedDataTypes() override { return {}; }
    WarningLevel getWarning(ISensorData::Type) override { return WRONG; }
    float getPlayPosition() override { return position; }
    void setPlayPosition(float fraction) override { position = fraction; }
    float position = 0.25f;
};

/// Whether the text stands somewhere, wherever its lines end.
bool isTold(irr::gui::IGUIElement* element, const std::wstring& text) {
    std::wstring shown = element->getText();
    std::replace(shown.begin(), shown.end(), L'\n', L' ');
    if (shown == text)
        return true;
    for (irr::gui::IGUIElement* child : element->getChildren())
        if (isTold(child, text))
            return true;
    return false;
}

class MenuTest : public MenuFixture {};

/// What takes long, and looks at nothing that depends on the size.
class MenuStormTest : public MenuTest {};

} // namespace

TEST_P(MenuTest, OpensByFingerAboveTheBarAndEveryRowCanBeHit) {
    EXPECT_EQ(static_cast<int>(GetParam().Height) - context->getRecommendedButtonHeight(), area().bottom);
    for (const wchar_t* button : {L"Menu", L"<", L">"})
        expectTouchable(findText(root, button));
    TouchTranslator translator;
    const irr::core::position2di place = findText(root, L"Menu")->getAbsolutePosition().getCenter();
    for (const RawTouch::Kind kind : {RawTouch::Begin, RawTouch::End}) {
        const TouchTranslator::Events events = translator.translate({kind, 1, place.X, place.Y, true});
        for (std::size_t i = 0; i < events.count; ++i)
            gl.device()->postEventFromUser(events.list[i]);
    }
    frame();
    ASSERT_TRUE(panels->getMenu()->isOpen());
    for (const MenuRow& row : menuRows())
        if (!row.isShown || row.isShown(*context)) {
            reveal(findText(root, row.text));
            expectTouchable(findText(root, row.text));
        }
    frame();
    picture("menu");
    clickAt({static_cast<int>(GetParam().Width) - 5, 5});
    frame();
    EXPECT_FALSE(panels->getMenu()->isOpen());
}

TEST_P(MenuTest, ArrowsTurnThePagesAndSoDoesThePreview) {
    tap(L">");
    EXPECT_EQ(1, panels->getCurrentPage());
    frame();
    EXPECT_TRUE(isShown(L"Page 2 / 7"));
    tap(L"<");
    tap(L"<");
    EXPECT_EQ(6, panels->getCurrentPage());
    openMenu();
    clickAt(
        {area().width - context->getRecommendedButtonHeight(), area().bottom - context->getRecommendedButtonHeight()});
    frame();
    EXPECT_EQ(0, panels->getCurrentPage());
    EXPECT_TRUE(panels->getMenu()->isOpen());
}

TEST_P(MenuTest, TheAltimeterStepsAddUpInBothUnits) {
    SensorManager* sensors = context->getSensorManager();
    auto* pressure = static_cast<Pressure_Data*>(
        sensors->getDefaultSensor(ISensorData::OutsidePressure)->getData(ISensorData::OutsidePressure));
    openMenu();
    tap(L"QNH/Altimeter Settings");
    EXPECT_FALSE(isShown(L"+ 10")) << "without a pressure sensor";
    tap(L"Close");
    pressure->value = 1000.0;
    openMenu();
    tap(L"QNH/Altimeter Settings");
    EXPECT_TRUE(isShown(L"1013.25 mbars"));
    EXPECT_TRUE(isShown(L"29.92 Hg"));
    const double before = sensors->getFallbackSeaLevelPressure();
    double expected = before;
    const std::pair<const wchar_t*, double> steps[] = {
        {L"- 10", -10},          {L"- 1", -1},           {L"+ 1", 1},         {L"+ 10", 10}, {L"- 0.1", -3.386389},
        {L"- 0.01", -0.3386389}, {L"+ 0.01", 0.3386389}, {L"+ 0.1", 3.386389}};
    for (const auto& [button, delta] : steps) {
        expectTouchable(findText(root, button));
        tap(button);
        expected += delta;
        EXPECT_DOUBLE_EQ(expected, sensors->getFallbackSeaLevelPressure());
    }
    tap(L"+ 10");
    EXPECT_TRUE(isShown(L"1023.25 mbars"));
    EXPECT_TRUE(isShown(L"30.22 Hg"));
    tap(L"Calculate QNH from GNSS altitude and pressure");
    EXPECT_TRUE(sensors->getForceAltimeterFallback());
    EXPECT_TRUE(isShown(L"=> resulting QNH/Altimeter setting: 1023.25 mbars, 30.22 Hg"));
    tap(L"Show GNSS altitude instead of pressure altitude");
    EXPECT_TRUE(sensors->getForceGNSSAltitude());
    for (int i = 0; i < 30; ++i)
        tap(L"+ 10");
    EXPECT_TRUE(isShown(L"1100.00 mbars")) << "no weather has more";
    frame();
    picture("altimeter");
    tap(L"Close");
    EXPECT_FALSE(isShown(L"Close"));
}

TEST_P(MenuTest, ExitAndRestoreAskAndNoChangesNothing) {
    const std::string before = IniFile(context->getConfigPath()).toString();
    script->then([&] { click(L"No"); }).then([&] { click(L"No"); });
    openMenu();
    tap(L"Exit");
    EXPECT_FALSE(context->shallExit());
    openMenu();
    tap(L"Restore Standard Config");
    EXPECT_TRUE(script->isDone());
    EXPECT_EQ(before, IniFile(context->getConfigPath()).toString());

    IniFile changed(context->getConfigPath());
    changed.set("", "PanelCount", "0");
    changed.set("", "units", "m|km|km/h");
    changed.Save(context->getConfigPath());
    script->then([&] { click(L"Yes"); });
    openMenu();
    tap(L"Restore Standard Config");
    EXPECT_TRUE(script->isDone());
    EXPECT_EQ("120", setting("PanelCount"));
    EXPECT_EQ("ft|nm|knots", setting("units"));
    EXPECT_EQ(7, panels->getPageCount());
    panels->getMenu()->forceShowOptimizedSettings(false);

    script->then([&] { click(L"Yes"); });
    openMenu();
    tap(L"Exit");
    EXPECT_TRUE(context->shallExit());
}

TEST_P(MenuTest, GeneralSetupWritesTheSettingsAndLoadsThePanelsAnew) {
    EXPECT_FALSE(panels->isMetric());
    panels->setAcceptMessagesEnabled(true);
    script->then([&] { picture("general-setup"); }).then([&] {
        EXPECT_FALSE(panels->isAcceptMessagesEnabled());
        click(L"Cancel");
    });
    openMenu();
    tap(L"General Setup");
    EXPECT_TRUE(panels->isAcceptMessagesEnabled());
    EXPECT_EQ("", setting("screenMode"));

    Menu* former = panels->getMenu();
    script->then([&] {
        findText(root, L"AMA, PROTECT, FIR, O, DO, OTHER, UIR, E, G, CTA")->setText(L"FIR");
        click(L"Ok");
    });
    openMenu();
    tap(L"General Setup");
    EXPECT_TRUE(script->isDone());
    EXPECT_EQ("FIR", setting("blacklist"));
    EXPECT_EQ("Auto", setting("screenMode"));
    EXPECT_EQ("0", setting("fontOffset")) << "not the first of the choices";
    EXPECT_EQ("200", setting("inputColor.R"));
    EXPECT_EQ("", setting("inputColor"));
    EXPECT_EQ(1u, panels->getIrrelevantAirspaceCount());
    EXPECT_TRUE(panels->isAcceptMessagesEnabled());
    EXPECT_NE(nullptr, panels->getMenu());
    EXPECT_NE(former, nullptr);
    openMenu();
}

TEST_P(MenuTest, AircraftAreMadeEditedAndDeleted) {
    AircraftManager* aircrafts = context->getAircraftManager();
    const auto stored = [&] {
        AircraftProfiles profiles;
        profiles.read(IniFile(context->getPath("data/aircrafts.ini")));
        return profiles;
    };
    script->then([&] { click(L"Delete"); })
        .then([&] {
            EXPECT_TRUE(isTold(root, L"Error: You can not delete the last available aircraft."));
            click(L"Ok");
        })
        .then([&] { click(L"New"); })
        .then([&] {
            findText(root, L"new aircraft")->setText(L"D-EABC");
            findText(root, L"145")->setText(L"250");
            click(L"Ok");
        })
        .then([&] {
            EXPECT_TRUE(isTold(root, L"Vno is above Vne. Please check the speeds."));
            click(L"Ok");
        })
        .then([&] {
            EXPECT_EQ(1, aircrafts->getAircraftCount());
            findText(root, L"250")->setText(L"150");
            click(L"Ok");
        })
        .then([&] {
            EXPECT_EQ(2, stored().getCount());
            EXPECT_EQ("D-EABC", stored().getCurrent().name);
            EXPECT_EQ(150, stored().getCurrent().Vno);
            click(L"Checklists");
        })
        .then([&] { click(L"New"); })
        .then([&] {
            for (irr::gui::IGUIElement* each : findText(root, L"Checklist Name: ")->getParent()->getChildren())
                if (each->getType() == irr::gui::EGUIET_EDIT_BOX)
                    each->setText(static_cast<irr::gui::IGUIEditBox*>(each)->isMultiLineEnabled()
                                      ? L"Fuel on\n\nDoors|shut\n"
                                      : L"Start");
            picture("checklist");
            click(L"Ok");
        })
        .then([&] {
            ASSERT_EQ(1, stored().getCurrent().getCheckListCount());
            EXPECT_EQ((std::list<std::string>{"Fuel on", "Doors", "shut"}),
                      stored().getCurrent().getCheckList(0)->lines);
            click(L"Cancel");
        })
        .then([&] { picture("aircraft"); })
        .then([&] { click(L"Delete"); })
        .then([&] { click(L"No"); })
        .then([&] {
            EXPECT_EQ(2, aircrafts->getAircraftCount());
            click(L"Delete");
        })
        .then([&] { click(L"Yes"); })
        .then([&] { click(L"Cancel"); });
    openMenu();
    tap(L"Aircraft Setup");
    EXPECT_TRUE(script->isDone());
    EXPECT_EQ(1, stored().getCount());
    EXPECT_EQ("Default", aircrafts->getCurrentAircraft().name);
    EXPECT_TRUE(isShown(L"Menu"));
}

TEST_P(MenuTest, PlaybackRowsDriveASeekableSensor) {
    SensorManager* sensors = context->getSensorManager();
    openMenu();
    EXPECT_FALSE(isShown(L"Playback Options:"));
    tap(L"Menu");
    SeekableProbe probe;
    sensors->registerSeekableSensor(&probe);
    openMenu();
    EXPECT_TRUE(isShown(L"Playback Options:"));
    EXPECT_TRUE(isShown(L"0001"));
    tap(L"Pause");
    EXPECT_EQ(SensorManager::PLAYBACK_PAUSE, sensors->getPlaybackState());
    frame();
    tap(L"Play");
    EXPECT_EQ(SensorManager::PLAYBACK_PLAY, sensors->getPlaybackState());
    tap(L"Loop");
    EXPECT_TRUE(sensors->getPlaybackLoop());
    tap(L"Stop");
    EXPECT_EQ(SensorManager::PLAYBACK_STOP, sensors->getPlaybackState());
    frame();
    picture("playback");
    panels->unload();
}

/// Fingers and keys everywhere, in no order: nothing falls over, and the menu opens afterwards.
TEST_P(MenuStormTest, SurvivesAStormOfTouchesAndKeys) {
    unsigned seed = 20240607;
    const auto random = [&seed](int below) {
        seed = seed * 1664525u + 1013904223u;
        return static_cast<int>((seed >> 8) % static_cast<unsigned>(below));
    };
    const int last = static_cast<int>(GetParam().Height);
    for (int i = 0; i < 400; ++i) {
        const irr::core::position2di place(random(static_cast<int>(GetParam().Width)), random(last));
        switch (random(4)) {
        case 0:
            key(random(2) ? irr::KEY_NEXT : irr::KEY_PRIOR);
            break;
        case 1:
            gl.device()->postEventFromUser(
                packTouchEvent({static_cast<unsigned>(i), place.X, place.Y, 1, TouchEvent::Moved}));
            break;
        default:
            // Not on the rows that wait for an answer.
            clickAt(panels->getMenu()->isOpen() ? irr::core::position2di(place.X, last - 3) : place);
        }
        if (i % 5 == 0)
            frame();
    }
    frame(2);
    if (panels->getMenu()->isOpen())
        tap(L"Menu");
    openMenu();
}

INSTANTIATE_TEST_SUITE_P(Screens, MenuTest, allScreens());
INSTANTIATE_TEST_SUITE_P(OneScreen, MenuStormTest, testing::Values(irr::core::dimension2du(800, 480)));

} // namespace skyvane

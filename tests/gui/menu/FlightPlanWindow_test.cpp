#include "core/Factories.h"
#include "gui/menu/MenuFixture.h"
#include "procedures/ProcedureManager.h"
#include "procedures/direct/DirectProcedure.h"
#include "procedures/holding/HoldingProcedure.h"

namespace skyvane {
namespace {

/// A plan of three places in the window that the menu opens.
class FlightPlanWindowTest : public MenuFixture {
protected:
    void SetUp() override {
        MenuFixture::SetUp();
        if (!context)
            return;
        procedures = context->getProcedureManager();
        registerProcedureFactories(*context, *procedures);
        panels->setAcceptMessagesEnabled(true);
        for (const double longitude : {8.5, 9.0, 9.5})
            procedures->addProcedure(std::make_unique<DirectProcedure>(
                ChartPosition(longitude, 50.0), procedures->findProcedureFactorybyType(IProcedure::Direct)));
        procedures->setCurrentProcedure(0);
    }
    void fly() {
        context->getSensorManager()->startSimulation({8.0, 50.0}, 90, 1000);
        procedures->calculateCourseList();
    }
    void openWindow() {
        openMenu();
        tap(L"FlightPlan");
        frame();
    }
    std::string order() const {
        std::string text;
        for (const auto& procedure : procedures->getProcedures())
            text += std::to_string(static_cast<int>(procedure->getLocationPosition().longitude * 10.0)) + " ";
        return text + "at " + std::to_string(procedures->getCurrentProcedureIndex());
    }
    irr::gui::IGUIListBox* list() {
        for (irr::gui::IGUIElement* each : findText(root, L"Delete")->getParent()->getChildren())
            if (each->getType() == irr::gui::EGUIET_LIST_BOX)
                return static_cast<irr::gui::IGUIListBox*>(each);
        return nullptr;
    }
    irr::gui::IGUIElement* editBox(irr::gui::IGUIElement* window) {
        for (irr::gui::IGUIElement* each : window->getChildren())
            if (each->getType() == irr::gui::EGUIET_EDIT_BOX)
                return each;
        return nullptr;
    }
    void pressRow(int row) {
        const irr::core::recti place = list()->getAbsolutePosition();
        clickAt({place.getCenter().X,
                 place.UpperLeftCorner.Y + environment->getSkin()->getSize(irr::gui::EGDS_BUTTON_HEIGHT) * row + 5});
        frame();
    }
    void pressArrow(bool down) {
        const irr::core::recti place = list()->getAbsolutePosition();
        const int quarter = place.getHeight() / 4;
        clickAt({place.LowerRightCorner.X + context->getRecommendedButtonHeight(),
                 place.UpperLeftCorner.Y + (down ? 3 * quarter : quarter)});
        frame();
    }
    void type(const std::wstring& text) {
        irr::gui::IGUIElement* box = editBox(list()->getParent());
        box->setText(text.c_str());
        irr::SEvent event{};
        event.EventType = irr::EET_GUI_EVENT;
        event.GUIEvent.Caller = box;
        event.GUIEvent.EventType = irr::gui::EGET_EDITBOX_CHANGED;
        panels->processEvent(event);
    }

    ProcedureManager* procedures = nullptr;
};

TEST_P(FlightPlanWindowTest, TellsHowFarAndHowLong) {
    openWindow();
    EXPECT_EQ(3u, list()->getItemCount());
    EXPECT_TRUE(isShown(L"Index: 1 / 3"));
    EXPECT_TRUE(isShown(L"Total distance: n/A"));
    EXPECT_TRUE(isShown(L"kts: n/A"));
    EXPECT_TRUE(isShown(L"EFAP at kts: n/A"));
    fly();
    frame();
    // Half a degree of longitude on 50 N, three times, 19.31 NM each, and a turn at the beginning.
    EXPECT_TRUE(isShown(L"Total distance [NM]: 57.9"));
    EXPECT_STREQ(L"1   19.3 NM   Direct: User Position", list()->getListItem(0));
    type(L"100");
    EXPECT_TRUE(isShown(L"kts: 00:11:35")) << irr::core::stringc(editBox(list()->getParent())->getText()).c_str();
    EXPECT_TRUE(isShown(L"EFAP at 100 kts: 00:34:44"));
    picture("flightplan");
    type(L"0");
    EXPECT_TRUE(isShown(L"EFAP at kts: n/A"));
    type(L"100");
    tap(L"Close");
    openWindow();
    EXPECT_TRUE(isShown(L"EFAP at 100 kts: 00:34:44")) << "the speed is kept";
}

TEST_P(FlightPlanWindowTest, SelectsMovesAndDeletes) {
    fly();
    openWindow();
    for (const wchar_t* button : {L"Edit", L"Delete", L"Create New", L"Saved Flight Plans", L"Help", L"Close"})
        expectTouchable(findText(root, button));
    pressRow(1);
    EXPECT_EQ("85 90 95 at 1", order());
    pressArrow(false);
    EXPECT_EQ("90 85 95 at 0", order());
    pressArrow(false); // it is at the beginning
    EXPECT_EQ("90 85 95 at 0", order());
    pressArrow(true);
    pressArrow(true);
    EXPECT_EQ("85 95 90 at 2", order());
    EXPECT_TRUE(isShown(L"Index: 3 / 3"));
    for (const bool yes : {false, true}) {
        script->then([this, yes] {
            EXPECT_EQ(L"Do you really want to remove the selected Procedure?", told().substr(0, 52));
            click(yes ? L"Yes" : L"No");
        });
        tap(L"Delete");
        EXPECT_TRUE(script->isDone());
        EXPECT_EQ(yes ? "85 95 at 1" : "85 95 90 at 2", order());
    }
    // The plan goes on by itself: the window follows.
    procedures->setCurrentProcedure(0);
    frame();
    EXPECT_EQ(0, list()->getSelected());
    procedures->deleteAllProcedures();
    frame();
    EXPECT_FALSE(findText(root, L"Delete")->isEnabled());
    EXPECT_FALSE(findText(root, L"Edit")->isEnabled());
    EXPECT_TRUE(isShown(L"Total distance: n/A"));
}

TEST_P(FlightPlanWindowTest, DeletesWhatWasAskedAboutAlsoWhenThePlanHasMovedOn) {
    fly();
    openWindow();
    script->then([this] { procedures->nextProcedure(); }).then([this] { click(L"Yes"); });
    tap(L"Delete");
    EXPECT_EQ("90 95 at 0", order());
}

TEST_P(FlightPlanWindowTest, EditsTheValuesOfAProcedure) {
    fly();
    openWindow();
    const auto box = [this](const std::wstring& text) { return findText(root, text); };
    script->then([&] { picture("procedure-edit"); })
        .then([&] {
            box(L"115")->setText(L"5000"); // of ground speed
            click(L"Ok");
        })
        .then([&] {
            EXPECT_EQ(L"approx. GS [Kts]: please enter a number from 0 to 1000.", told().substr(0, 56));
            click(L"Ok");
        })
        .then([&] {
            box(L"5000")->setText(L"95");
            click(L"Ok");
        });
    tap(L"Edit");
    EXPECT_TRUE(script->isDone());
    EXPECT_EQ(95.0, procedures->getCurrentProcedure()->getValues().targetGroundSpeed);
    EXPECT_FALSE(procedures->getCurrentProcedure()->getValues().hasTargetAltitude());
    EXPECT_FALSE(procedures->getCurrentProcedure()->getCourseList().empty());
    EXPECT_EQ("85 90 95 at 0", order());
    EXPECT_TRUE(isShown(L"Index: 1 / 3")) << "the window is back";
}

TEST_P(FlightPlanWindowTest, SavesAndBringsBackPlans) {
    openWindow();
    script->then([this] {
        EXPECT_TRUE(isShown(L"Saved Flight Plans"));
        editBox(findText(root, L"Cancel")->getParent())->setText(L"Trip");
        click(L"Save");
    });
    tap(L"Saved Flight Plans");
    EXPECT_TRUE(script->isDone());
    EXPECT_EQ("3", IniFile(context->getPath("data/fpl.ini")).get("Trip", "cnt"));
    procedures->deleteAllProcedures();
    script->then([this] { click(L"Trip"); }).then([this] { picture("saved-plans"); }).then([this] { click(L"Load"); });
    tap(L"Saved Flight Plans");
    EXPECT_EQ("85 90 95 at 0", order());
    EXPECT_EQ(3u, list()->getItemCount());

    procedures->deleteAllProcedures();
    script
        ->then([this] {
            editBox(findText(root, L"Cancel")->getParent())->setText(L"Nothing");
            click(L"Save");
        })
        .then([this] {
            EXPECT_EQ(L"The flight plan has no procedures yet.", told().substr(0, 38));
            click(L"Ok");
        })
        .then([this] { click(L"Cancel"); });
    tap(L"Saved Flight Plans");
    EXPECT_TRUE(script->isDone());
    EXPECT_FALSE(IniFile(context->getPath("data/fpl.ini")).isSectionAvailable("Nothing"));
}

TEST_P(FlightPlanWindowTest, KeepsMessagesOffWhileItTakesText) {
    openWindow();
    EXPECT_FALSE(panels->isAcceptMessagesEnabled());
    tap(L"Close");
    EXPECT_TRUE(panels->isAcceptMessagesEnabled());
    panels->getMenu()->showSimulator();
    frame();
    EXPECT_FALSE(panels->isAcceptMessagesEnabled());
    tap(L"Close");
    EXPECT_TRUE(panels->isAcceptMessagesEnabled());
}

TEST_P(FlightPlanWindowTest, TheSimulatorAsksForAPlaceAndIsStoppedWhereItWasStarted) {
    const SensorManager* sensors = context->getSensorManager();
    panels->getMenu()->showSimulator();
    frame();
    for (const wchar_t* button : {L"Recent", L"Start Simulation", L"Help", L"Close"})
        expectTouchable(findText(root, button));
    picture("simulator");
    script->then([this] {
        EXPECT_EQ(L"Error: No Chart Element selected.", told().substr(0, 33));
        click(L"Ok");
    });
    tap(L"Start Simulation");
    EXPECT_TRUE(script->isDone());
    EXPECT_FALSE(sensors->isSimulationActive());
    fly();
    frame(2);
    EXPECT_TRUE(isShown(L"SIMULATION   Page 1 / 7") || isShown(L"SIM   1 / 7"));
    picture("simulator-on");
    tap(L"Stop Simulation");
    EXPECT_FALSE(sensors->isSimulationActive());
    frame();
    EXPECT_TRUE(isShown(L"Page 1 / 7"));
    EXPECT_TRUE(isShown(L"Start Simulation"));
}

INSTANTIATE_TEST_SUITE_P(Screens, FlightPlanWindowTest, allScreens());

} // namespace
} // namespace skyvane

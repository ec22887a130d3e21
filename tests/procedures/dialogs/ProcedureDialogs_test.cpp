#include "procedures/dialogs/ProcedureDialogs.h"

#include "procedures/approach/TrafficPatternApproach.h"

namespace skyvane {
namespace {

/// All of them on every shape of screen.
class ProcedureLooks : public ProcedureDialogs {};

TEST_P(ProcedureDialogs, aDirectWayIsTwoTouches) {
    fly();
    type("sky").step([this] {
        EXPECT_TRUE(isShown(L"Distance [NM]: 14.4\nBearing [°]: 16"));
        const auto buttons = visible(irr::gui::EGUIET_BUTTON);
        const auto direct = std::find_if(buttons.begin(), buttons.end(), [](const irr::gui::IGUIElement* button) {
            return std::string(button->getName()) == "directNormal";
        });
        ASSERT_NE(direct, buttons.end());
        click(*direct);
    });
    EXPECT_TRUE(fillPlan());
    ASSERT_EQ(plan().getProcedureCount(), 1);
    EXPECT_EQ(plan().getCurrentProcedure()->getName(), "Direct: SKY - SKYVANE - VOR");
    EXPECT_GT(plan().getCurrentProcedure()->getCourseList().size(), 2u);
    ASSERT_EQ(recent().size(), 15u);
    EXPECT_EQ(recent()[0], Navaid);
    // The next search begins with what is flown to, and knows where the pilot was before.
    step([this] { EXPECT_TRUE(isShown(L"SKY")); }).press(L"Recent").press(L"Cancel");
    EXPECT_FALSE(fillPlan());
    EXPECT_EQ(plan().getProcedureCount(), 1);
}

TEST_P(ProcedureDialogs, theNearestAreAirports) {
    fly();
    press(L"Nrst").choose(0, 1).step([this] {
        const auto lists = visible(irr::gui::EGUIET_LIST_BOX);
        const auto* destinations = static_cast<irr::gui::IGUIListBox*>(lists[0]);
        ASSERT_EQ(destinations->getItemCount(), 3u) << "no heliport";
        EXPECT_EQ(std::wstring(destinations->getListItem(0)), L"FELD - Field - Airport");
        EXPECT_EQ(std::wstring(destinations->getListItem(1)), L"MEDW - Meadow - Airport");
        EXPECT_EQ(static_cast<irr::gui::IGUIListBox*>(lists[1])->getItemCount(), 3u);
    });
    choose(0, 2).step([this] {
        const auto* procedures = static_cast<irr::gui::IGUIListBox*>(visible(irr::gui::EGUIET_LIST_BOX)[1]);
        ASSERT_EQ(procedures->getItemCount(), 1u);
        EXPECT_EQ(std::wstring(procedures->getListItem(0)), L"Error: No elevation available.");
        EXPECT_FALSE(findText(root, L"Next")->isEnabled());
    });
    press(L"Cancel");
    EXPECT_FALSE(fillPlan());
    EXPECT_TRUE(recent().empty());
}

TEST_P(ProcedureDialogs, anApproachKeepsItsRateOfDescent) {
    fly();
    type("feld").choose(1, 1).press(L"Next").step([this] {
        EXPECT_TRUE(isShown(L"=> Descent Rate: 500 ft/NM")); // (5530 rounded to 5500 - 530) / 10
    });
    choose(0, 2).press(L"+").step([this] {
        EXPECT_TRUE(isShown(L"1100"));
        EXPECT_TRUE(isShown(L"=> Descent Rate: 570 ft/NM"));
        EXPECT_TRUE(isShown(L"5.4°, 1140 ft/min at 120 kts"));
    });
    press(L"General Settings").enter(L"120", L"90").press(L"Finish");
    press(L"Finish");
    EXPECT_TRUE(fillPlan());
    ASSERT_EQ(plan().getCurrentProcedure()->getName(), "App: RWY 09 Field");
    EXPECT_EQ(saved("appId"), "TrafficPatternApproach");
    EXPECT_EQ(saved("isLeftTraffic"), "1");
    EXPECT_EQ(saved("threshold.name"), "09");
    EXPECT_EQ(saved("targetGroundSpeed"), "90");
    EXPECT_EQ(recent()[0], Field);
}

TEST_P(ProcedureDialogs, whatTheChartsDontKnowOfARunwayIsSaid) {
    fly();
    type("medw").press(L"Next").step([this] {
        EXPECT_TRUE(isShown(L"THRESHOLD POSITION UNKNOWN:\nusing extrapolated position\nRUNWAY LENGTH UNKNOWN\n"
                            L"WARNING: Approach procedure\nwith medium accuracy"));
    });
    press(L"Back").step([this] { EXPECT_TRUE(isShown(L"Next")); }).press(L"Cancel");
    EXPECT_FALSE(fillPlan());
    EXPECT_EQ(plan().getProcedureCount(), 0);
}

TEST_P(ProcedureDialogs, aHoldingIsWhatWasTyped) {
    fly();
    type("sky").choose(1, 1).press(L"Next").step([this] {
        EXPECT_TRUE(isShown(L"16")) << "the way to the fix";
        EXPECT_FALSE(isShown(L"Latitude [°]: "));
    });
    enter(L"16", L"123").enter(L"2.0", L"4").press(L"Right Turns").press(L"Altitude [ft]:");
    enter(L"9800", L"3000").step([this] { EXPECT_TRUE(isShown(L"Left Turns")); });
    press(L"Finish");
    EXPECT_TRUE(fillPlan());
    EXPECT_EQ(saved("course"), "123");
    EXPECT_EQ(saved("dmedistance"), "4");
    EXPECT_EQ(saved("rightturns"), "0");
    EXPECT_NEAR(std::stod(saved("targetAltitude")), 914.4, 1e-6);
    EXPECT_EQ(saved("loctype"), "2");
}

TEST_P(ProcedureDialogs, aHoldingHereNeedsAPlace) {
    type("").press(L"Proc. at current position").press(L"Next").press(L"Finish");
    step([this] { EXPECT_NE(told().find(L"Please enter where"), std::wstring::npos); }).press(L"Ok");
    step([this] {
        const auto boxes = visible(irr::gui::EGUIET_EDIT_BOX);
        ASSERT_EQ(boxes.size(), 4u);
        boxes[2]->setText(L"48.5");
        boxes[3]->setText(L"-9.25");
    });
    press(L"Finish");
    EXPECT_TRUE(fillPlan());
    EXPECT_EQ(plan().getCurrentProcedure()->getName(), "Holding at: User Position");
    EXPECT_DOUBLE_EQ(plan().getCurrentProcedure()->getLocationPosition().latitude, 48.5);
    EXPECT_DOUBLE_EQ(plan().getCurrentProcedure()->getLocationPosition().longitude, -9.25);
    EXPECT_TRUE(recent().empty()) << "no destination was chosen";
}

TEST_P(ProcedureDialogs, anInterceptionKnowsAirwaysRadialsAndItsLeastAngle) {
    fly();
    type("sky").press(L"Next").enter(L"45", L"24.9").press(L"Finish");
    step([this] { EXPECT_EQ(told(), L"The interception course offset must be >= 25°."); }).press(L"Ok");
    press(L"Radial").step([this] {
        EXPECT_FALSE(isShown(L"Connected Airways:"));
        EXPECT_TRUE(isShown(L"Radial (groundtrack):"));
    });
    enter(L"0", L"210").press(L"From").press(L"Finish");
    EXPECT_TRUE(fillPlan());
    EXPECT_EQ(plan().getCurrentProcedure()->getName(), "Intercept: SKY - SKYVANE - VOR 210 (from)");
    EXPECT_EQ(saved("courseToElement"), "30");
    EXPECT_EQ(saved("interceptOffset"), "45");
    EXPECT_EQ(saved("to"), "0");
    // Along an airway, the second of the list.
    type("sky").step([] {}).press(L"Next").choose(0, 1).press(L"Finish");
    EXPECT_TRUE(fillPlan());
    ASSERT_EQ(plan().getProcedureCount(), 2);
    EXPECT_EQ(plan().getCurrentProcedure()->getName(), "Intercept: SKY - SKYVANE - VOR 180 (to)");
}

TEST_P(ProcedureDialogs, generalSettingsRefuseWhatCantBeFlown) {
    fly();
    type("sky").choose(1, 1).press(L"Next").press(L"General Settings").enter(L"2.5", L"0").press(L"Finish");
    step([this] { EXPECT_EQ(told(), L"The turn rate must be from 0.5 to 30 °/s."); }).press(L"Ok");
    enter(L"0", L"3").press(L"Finish").press(L"Finish");
    EXPECT_TRUE(fillPlan());
    EXPECT_EQ(saved("targetTurnRate"), "3");
}

TEST_P(ProcedureLooks, chooseAndApproach) {
    fly();
    look("choose-start").press(L"Nrst").look("choose-nearest").type("medw").look("choose-approach");
    choose(1, 0).look("choose-direct").choose(1, 1).press(L"Next").look("approach");
    choose(0, 2).look("approach-circuit").press(L"General Settings").look("general").press(L"Back").press(L"Back");
    press(L"Cancel");
    EXPECT_FALSE(fillPlan());
    EXPECT_TRUE(script->isDone());
}

TEST_P(ProcedureLooks, holdingAndInterception) {
    fly();
    type("sky").look("choose-navaid").press(L"Next").look("intercept").press(L"Radial").look("intercept-radial");
    press(L"Back").choose(1, 1).look("choose-holding").press(L"Next").press(L"Altitude [ft]:").look("holding");
    press(L"Back").press(L"Proc. at current position").press(L"Next").look("holding-here");
    press(L"Back").press(L"Cancel");
    EXPECT_FALSE(fillPlan());
    EXPECT_TRUE(script->isDone());
}

INSTANTIATE_TEST_SUITE_P(SmallScreen, ProcedureDialogs, testing::Values(irr::core::dimension2du(800, 480)));
INSTANTIATE_TEST_SUITE_P(Screens, ProcedureLooks, allScreens());

} // namespace
} // namespace skyvane

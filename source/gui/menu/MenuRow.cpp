#include "gui/menu/MenuRow.h"

#include "core/Context.h"
#include "core/system/SystemManager.h"
#include "displays/PanelManager.h"
#include "gui/menu/Documentation.h"
#include "gui/menu/GeneralSetup.h"
#include "gui/menu/Menu.h"
#include "gui/menu/ReloadSettings.h"
#include "gui/windows/AskYesNo.h"
#include "procedures/ProcedureManager.h"
#include "procedures/aircraft/AircraftManager.h"
#include "sensors/SensorManager.h"
#include "sensors/setup/Calibration.h"
#include "sensors/setup/SetUpSensors.h"

namespace skyvane {
namespace {

constexpr int noteMilliseconds = 5000;

/// For screens that need all of the glass. They may load the panels anew, and the menu with them.
template <class Screen>
void runOnWholeGlass(Context& context, Screen run) {
    context.getPanelManager()->getMenu()->setVisible(false);
    run();
    context.getPanelManager()->getMenu()->setVisible(true);
}

bool hasFlightPlan(Context& context) {
    return context.getProcedureManager()->getProcedureCount() > 0;
}

bool hasOtherProcedures(Context& context) {
    return context.getProcedureManager()->getProcedureCount() > 1;
}

void showFlightPlan(Context& context) {
    context.getPanelManager()->getMenu()->showFlightPlan();
}

void flyNextProcedure(Context& context) {
    context.getProcedureManager()->nextProcedure();
    context.getProcedureManager()->calculateCourseList();
}

void flyPreviousProcedure(Context& context) {
    context.getProcedureManager()->previousProcedure();
    context.getProcedureManager()->calculateCourseList();
}

void refreshFlightPlan(Context& context) {
    context.getProcedureManager()->calculateCourseList();
}

void changeSensors(Context& context) {
    runOnWholeGlass(context, [&context] { setUpSensors(context); });
}

void setUpPanels(Context& context) {
    runOnWholeGlass(context, [&context] { context.getPanelManager()->selectPanelSettings(); });
}

void setUpAircraft(Context& context) {
    runOnWholeGlass(context, [&context] { context.getAircraftManager()->setSetupVisible(); });
}

void setUpProgram(Context& context) {
    runOnWholeGlass(context, [&context] { runGeneralSetup(context); });
}

void showPresets(Context& context) {
    context.getPanelManager()->getMenu()->forceShowOptimizedSettings(true);
}

void showAltimeter(Context& context) {
    context.getPanelManager()->getMenu()->showAltimeterSettings();
}

void showSimulator(Context& context) {
    context.getPanelManager()->getMenu()->showSimulator();
}

void showForwarders(Context& context) {
    context.getPanelManager()->getMenu()->showForwarders();
}

bool hasForwarderFactory(Context& context) {
    SensorManager* sensors = context.getSensorManager();
    for (int i = 0; i < sensors->getForwarderFactoryCount(); ++i)
        if (sensors->getForwarderFactory(i))
            return true;
    return false;
}

void openManual(Context& context) {
    context.getPanelManager()->setManualVisible();
}

void openHomepage(Context& context) {
    const std::string url = documentationUrl(context.getSystemManager()->getAppHome());
    if (url.empty())
        return context.showMessageBox("The documentation isn't installed beside the program.");
    context.setMessage(&context, "Browser starting...", MESSAGE_GREY, noteMilliseconds);
    context.gotoURL(url);
}

void exitProgram(Context& context) {
    if (askYesNo(context, L"Do you whish to exit Skyvane?"))
        context.setShallExit(true);
}

} // namespace

const std::vector<MenuRow>& menuRows() {
    static const std::vector<MenuRow> rows = {
        {L"FlightPlan", "blueRow", showFlightPlan},
        {L"Proc. >", "blueRow", flyNextProcedure, hasOtherProcedures},
        {L"< Proc.", "blueRow", flyPreviousProcedure, hasOtherProcedures},
        {L"Refresh", "blueRow", refreshFlightPlan, hasFlightPlan},
        {L"Change Sensors", "yellowRow", changeSensors},
        {L"Panel Setup", "yellowRow", setUpPanels},
        {L"Aircraft Setup", "yellowRow", setUpAircraft},
        {L"General Setup", "yellowRow", setUpProgram},
        {L"Apply Optimized Settings", "orangeRow", showPresets},
        {L"Restore Standard Config", "orangeRow", restoreStandardConfig},
        {L"Calib.", "orangeRow", calibrateSensors},
        {L"QNH/Altimeter Settings", "blueRow", showAltimeter},
        {L"Position Simulator", "greenRow", showSimulator},
        {L"Forwarding", "greenRow", showForwarders, hasForwarderFactory},
        {L"Manual", "cyanRow", openManual},
        {L"Homepage", "cyanRow", openHomepage},
        {L"Exit", "greyRow", exitProgram},
    };
    return rows;
}

} // namespace skyvane

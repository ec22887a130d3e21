#include "gui/menu/PositionSimulator.h"

#include "chart/elements/IChartElement.h"
#include "chart/geodesy/EarthConstants.h"
#include "chart/store/IChartElementSource.h"
#include "core/Context.h"
#include "core/text/Numbers.h"
#include "core/text/StrictNumber.h"
#include "core/text/Utf8.h"
#include "displays/PanelManager.h"
#include "gui/menu/MenuLayouts.h"
#include "gui/skin/Skin.h"
#include "gui/windows/Help.h"
#include "gui/windows/Questions.h"
#include "gui/windows/WindowTools.h"
#include "procedures/ProcedureManager.h"
#include "procedures/dialogs/SearchBoxHandler.h"
#include "sensors/SensorManager.h"

namespace skyvane {
namespace {

constexpr const char* helpFile = "PositionSimulator.hti";
constexpr int fullCircle = 360;
constexpr int lowestFeet = -2000, highestFeet = 60000;

} // namespace

PositionSimulator::PositionSimulator(Context* context)
    : MenuWindow(context, simulatorLandscapeLayout, simulatorPortraitLayout, Place::High),
      sensors_(context->getSensorManager()), search_(context->getPanelManager()->getSearchBoxHandler()) {
    pause_.emplace(*context->getPanelManager());
    prepareHelpButton(context, element("bhelp"), helpFile);
    SearchBoxElements elements;
    elements.edit = gui().get<irr::gui::IGUIEditBox>("edest");
    elements.list = gui().get<irr::gui::IGUIListBox>("ldest");
    elements.recent = element("brecent");
    elements.hint = element("thint");
    search_->init(nullptr, 0, elements);
    Skin::setButtonStyle(element("bstart"), "greenNormal");
    PositionSimulator::update();
}

PositionSimulator::~PositionSimulator() {
    search_->release();
}

/// Loading the sensors anew ends a simulation, too.
void PositionSimulator::update() {
    const bool isActive = sensors_->isSimulationActive();
    const wchar_t* label = isActive ? L"Stop Simulation" : L"Start Simulation";
    if (irr::core::stringw(label) == element("bstart")->getText())
        return;
    showText(element("bstart"), label);
    showText(element("tstate"), isActive ? L"The aircraft is simulated." : L"");
    Skin::setButtonStyle(element("bstart"), isActive ? "redNormal" : "greenNormal");
}

void PositionSimulator::onEvent(const irr::SEvent& event) {
    search_->processEvent(event);
    if (isClickOf(event, element("bstart")))
        startOrStop();
    else if (isClickOf(event, element("bhelp")))
        showHelp(context_, helpFile);
}

void PositionSimulator::startOrStop() {
    if (sensors_->isSimulationActive()) {
        sensors_->stopSimulation();
        context_->getProcedureManager()->calculateCourseList(); // from the real place again
    } else {
        start();
    }
    update();
}

void PositionSimulator::start() {
    const std::optional<ChartPosition> position = selectedPosition();
    if (!position)
        return tellInBox(*context_, L"Error: No Chart Element selected.");
    const std::optional<int> heading = number("eheading", 0, fullCircle);
    if (!heading)
        return tellInBox(*context_, L"Error: The heading is a number of degrees from 0 to 360.");
    const std::optional<int> feet = number("ealtitude", lowestFeet, highestFeet);
    if (!feet)
        return tellInBox(*context_, L"Error: The altitude is a number of feet from -2000 to 60000.");
    search_->finish();
    pause_.reset(); // what this has to say is meant for now
    sensors_->startSimulation(*position, *heading % fullCircle, roundHalfAway(*feet * MetresPerFoot));
    context_->getProcedureManager()->calculateCourseList();
    pause_.emplace(*context_->getPanelManager());
}

std::optional<ChartPosition> PositionSimulator::selectedPosition() const {
    IChartElementSource* charts = context_->getCharts();
    const IChartElement* chosen = charts ? charts->getChartElement(search_->getSelectedChartElement()) : nullptr;
    return chosen ? std::optional(chosen->getPosition()) : std::nullopt;
}

std::optional<int> PositionSimulator::number(const char* id, int least, int most) const {
    double value = 0.0;
    if (!parseStrictNumber(encodeUtf8(element(id)->getText()), value) || value < least || value > most)
        return std::nullopt;
    return roundHalfAway(value);
}

} // namespace skyvane

#include "gui/menu/FlightPlanWindow.h"

#include "core/Context.h"
#include "core/text/Numbers.h"
#include "core/text/Utf8.h"
#include "displays/PanelManager.h"
#include "gui/menu/MenuLayouts.h"
#include "gui/menu/ProcedureEditor.h"
#include "gui/menu/SavedFPLCbk.h"
#include "gui/skin/Skin.h"
#include "gui/windows/AskYesNo.h"
#include "gui/windows/Help.h"
#include "gui/windows/ListRows.h"
#include "gui/windows/WindowTools.h"
#include "procedures/ProcedureManager.h"
#include "procedures/plan/PlanFigures.h"

namespace skyvane {
namespace {

constexpr const char* helpFile = "FlightPlan.hti";
constexpr const char* upStyle = "planUpRow";
constexpr const char* downStyle = "procStdRow";

/// The arrow up as the one down: of the skin's two one is blue, which would say that it does something else.
void setArrowStyles(Skin& skin) {
    const ButtonStyle *up = skin.getButtonStyle("procRow"), *down = skin.getButtonStyle(downStyle);
    if (!up || !down)
        return;
    ButtonStyle style = *down;
    style.image = up->image;
    skin.addButtonStyle(upStyle, style);
}

} // namespace

FlightPlanWindow::FlightPlanWindow(Context* context, std::wstring& speed)
    : MenuWindow(context, flightPlanLandscapeLayout, flightPlanPortraitLayout),
      procedures_(context->getProcedureManager()), speed_(speed) {
    pause_.emplace(*context->getPanelManager());
    setArrowStyles(*context->getSkin());
    Skin::setButtonStyle(element("bup"), upStyle);
    Skin::setButtonStyle(element("bdown"), downStyle);
    Skin::setButtonStyle(element("bdelete"), "redNormal");
    element("espeed")->setText(speed_.c_str());
    prepareHelpButton(context, element("bhelp"), helpFile);
    updateProcedureListBox();
}

/// What a plan had to say while it was made or loaded here was not accepted.
FlightPlanWindow::~FlightPlanWindow() {
    pause_.reset();
    if (isChanged_)
        procedures_->repeatMessages();
}

void FlightPlanWindow::OnProcedureChanged() {
    isChanged_ = true;
    updateProcedureListBox();
}

void FlightPlanWindow::updateProcedureListBox() {
    const bool metric = context_->getPanelManager()->isMetric();
    std::vector<std::string> rows;
    for (const auto& procedure : procedures_->getProcedures())
        rows.push_back(planLine(static_cast<int>(rows.size()), *procedure, metric));
    fillList(list(), *context_->getSkin(), decodeRows(rows));
    if (!rows.empty())
        list()->setSelected(procedures_->getCurrentProcedureIndex());
    enableButtons();
    updateProcInfos();
}

void FlightPlanWindow::enableButtons() {
    const int count = procedures_->getProcedureCount(), current = procedures_->getCurrentProcedureIndex();
    element("bup")->setEnabled(count > 0 && current > 0);
    element("bdown")->setEnabled(current + 1 < count);
    element("bdelete")->setEnabled(count > 0);
    element("bedit")->setEnabled(count > 0 && procedures_->getCurrentProcedure()->getFactory());
}

void FlightPlanWindow::show(const char* id, const std::string& text) {
    showText(element(id), decodeUtf8(text).c_str());
}

void FlightPlanWindow::updateProcInfos() {
    const bool metric = context_->getPanelManager()->isMetric();
    const int count = procedures_->getProcedureCount(), current = procedures_->getCurrentProcedureIndex();
    const PlanFigures figures = measurePlan(procedures_->getProcedures(), current);
    const std::string typed = encodeUtf8(speed_);
    const std::optional<double> speed = readTypedSpeed(typed);
    show("tindex", count > 0 ? "Index: " + toText(current + 1) + " / " + toText(count) : "Index: ");
    show("tdistance", totalDistanceText(figures.totalMiles, metric));
    show("tetap", flyingTimeText(figures.currentMiles, speed, metric));
    show("tefap", "EFAP at " + (speed ? typed + " " : "") + flyingTimeText(figures.totalMiles, speed, metric));
}

void FlightPlanWindow::onEvent(const irr::SEvent& event) {
    const irr::gui::EGUI_EVENT_TYPE kind = event.GUIEvent.EventType;
    if (kind == irr::gui::EGET_BUTTON_CLICKED)
        return onClick(event);
    if (event.GUIEvent.Caller == element("espeed") && kind == irr::gui::EGET_EDITBOX_CHANGED) {
        speed_ = element("espeed")->getText();
        updateProcInfos();
    }
    if (event.GUIEvent.Caller == list() &&
        (kind == irr::gui::EGET_LISTBOX_CHANGED || kind == irr::gui::EGET_LISTBOX_SELECTED_AGAIN))
        select();
}

void FlightPlanWindow::onClick(const irr::SEvent& event) {
    if (isClickOf(event, element("bup")) || isClickOf(event, element("bdown")))
        move(isClickOf(event, element("bdown")));
    else if (isClickOf(event, element("bedit")))
        edit();
    else if (isClickOf(event, element("bdelete")))
        deleteSelected();
    else if (isClickOf(event, element("bcreate")))
        createNew();
    else if (isClickOf(event, element("bsaved")))
        openSavedPlans();
    else if (isClickOf(event, element("bhelp")))
        showHelp(context_, helpFile);
}

/// What is selected is what is flown. A finger on the line that is flown already changes nothing.
void FlightPlanWindow::select() {
    const int selected = list()->getSelected();
    if (selected < 0 || selected == procedures_->getCurrentProcedureIndex())
        return;
    procedures_->setCurrentProcedure(selected);
    procedures_->calculateCourseList();
}

void FlightPlanWindow::move(bool forwards) {
    if (forwards)
        procedures_->moveCurrentProcedureForwards();
    else
        procedures_->moveCurrentProcedureBackwards();
    procedures_->calculateCourseList();
}

void FlightPlanWindow::edit() {
    runOnWholeScreen([this] { editCurrentProcedure(*context_); });
    updateProcedureListBox();
}

/// The plan may have moved on while the question stood: the procedure that was asked about goes, none other.
void FlightPlanWindow::deleteSelected() {
    const IProcedure* const asked = procedures_->getCurrentProcedure();
    if (!askYesNo(*context_, L"Do you really want to remove the selected Procedure?"))
        return;
    if (procedures_->changeProcedure(asked, [this] { procedures_->deleteCurrentProcedure(); }))
        procedures_->calculateCourseList();
    updateProcedureListBox();
}

void FlightPlanWindow::createNew() {
    procedures_->newProcedure();
    updateProcedureListBox();
}

void FlightPlanWindow::openSavedPlans() {
    runOnWholeScreen([this] { showSavedFlightPlans(*context_); });
    updateProcedureListBox();
}

} // namespace skyvane

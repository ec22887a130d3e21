#include "procedures/aircraft/AircraftScreen.h"

#include "core/Context.h"
#include "gui/windows/AskYesNo.h"
#include "procedures/aircraft/AircraftEditor.h"
#include "procedures/aircraft/AircraftManager.h"

namespace skyvane {

AircraftScreen::AircraftScreen(Context& context, AircraftManager& aircrafts)
    : ListScreen(context, {L"current aircraft: ", L"Checklists", "AircraftData.hti"}), aircrafts_(aircrafts) {
    refresh(aircrafts_.getCurrentAircraftIndex());
}

std::vector<std::string> AircraftScreen::names() {
    std::vector<std::string> names;
    for (int i = 0; i < aircrafts_.getAircraftCount(); ++i)
        names.push_back(aircrafts_.getAircraft(i)->name);
    return names;
}

void AircraftScreen::changed() {
    aircrafts_.saveAircrafts();
    refresh(aircrafts_.getCurrentAircraftIndex());
}

void AircraftScreen::onSelect(int index) {
    if (index == aircrafts_.getCurrentAircraftIndex())
        return;
    aircrafts_.setCurrentAircraft(index);
    aircrafts_.saveAircrafts();
}

void AircraftScreen::onNew() {
    Aircraft aircraft;
    if (!editAircraft(context_, aircraft))
        return;
    aircrafts_.addAircraft(std::move(aircraft));
    changed();
}

void AircraftScreen::onEdit(int index) {
    if (editAircraft(context_, *aircrafts_.getAircraft(index)))
        changed();
}

void AircraftScreen::onMore(int index) {
    CheckListScreen(context_, aircrafts_, index).run();
}

void AircraftScreen::onDelete(int index) {
    if (aircrafts_.getAircraftCount() == 1)
        return context_.showMessageBox("Error: You can not delete the last available aircraft.");
    if (!askYesNo(context_, L"Do you really want to delete the selected aircraft?"))
        return;
    aircrafts_.removeAircraft(index);
    changed();
}

CheckListScreen::CheckListScreen(Context& context, AircraftManager& aircrafts, int aircraft)
    : ListScreen(context, {L"Checklist: ", L"", "AircraftData.hti"}), aircrafts_(aircrafts), index_(aircraft) {
    refresh(this->aircraft().getCheckListCount() > 0 ? 0 : -1);
}

Aircraft& CheckListScreen::aircraft() {
    return *aircrafts_.getAircraft(index_);
}

std::vector<std::string> CheckListScreen::names() {
    std::vector<std::string> names;
    for (const CheckList& list : aircraft().checklists)
        names.push_back(list.name);
    return names;
}

void CheckListScreen::onNew() {
    const int index = addCheckList(context_, aircrafts_, index_);
    if (index >= 0)
        refresh(index);
}

void CheckListScreen::onEdit(int index) {
    if (editCheckList(context_, aircrafts_, index_, index))
        refresh(index);
}

void CheckListScreen::onDelete(int index) {
    if (removeCheckList(context_, aircrafts_, index_, index))
        refresh(aircraft().getCheckListCount() > 0 ? 0 : -1);
}

} // namespace skyvane

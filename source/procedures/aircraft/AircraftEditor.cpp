#include "procedures/aircraft/AircraftEditor.h"

#include "core/Context.h"
#include "core/ini/IniFile.h"
#include "core/text/Utf8.h"
#include "displays/MessagePause.h"
#include "gui/windows/AskYesNo.h"
#include "gui/windows/IniEditor.h"
#include "gui/windows/Questions.h"
#include "procedures/aircraft/AircraftDocuments.h"
#include "procedures/aircraft/AircraftManager.h"
#include "procedures/aircraft/CheckListDialog.h"

namespace skyvane {

bool editAircraft(Context& context, Aircraft& aircraft) {
    const MessagePause pause(*context.getPanelManager());
    IniFile fields;
    aircraft.writeToIni(fields, "");
    Aircraft edited;
    do {
        if (!IniEditor(&context, "Aircraft", decodeUtf8(aircraftSchema), "AircraftData.hti").run(&fields))
            return false;
        edited.readFromIni(fields, "");
        if (!edited.findTrouble().empty())
            tellInBox(context, decodeUtf8(edited.findTrouble()) + L" Please check the speeds.");
    } while (!edited.findTrouble().empty());
    aircraft = edited;
    return true;
}

bool editCheckList(Context& context, CheckList& list) {
    const MessagePause pause(*context.getPanelManager());
    return CheckListDialog(context).run(list);
}

int addCheckList(Context& context, AircraftManager& aircrafts, int aircraft) {
    CheckList list;
    if (!aircrafts.getAircraft(aircraft) || !editCheckList(context, list))
        return -1;
    Aircraft& owner = *aircrafts.getAircraft(aircraft);
    const int index = owner.createCheckList();
    *owner.getCheckList(index) = std::move(list);
    aircrafts.saveAircrafts();
    return index;
}

bool editCheckList(Context& context, AircraftManager& aircrafts, int aircraft, int index) {
    Aircraft* owner = aircrafts.getAircraft(aircraft);
    if (!owner || !owner->getCheckList(index) || !editCheckList(context, *owner->getCheckList(index)))
        return false;
    aircrafts.saveAircrafts();
    return true;
}

bool removeCheckList(Context& context, AircraftManager& aircrafts, int aircraft, int index) {
    Aircraft* owner = aircrafts.getAircraft(aircraft);
    if (!owner || !owner->getCheckList(index) ||
        !askYesNo(context, L"Do you really want to delete the selected Checklist?"))
        return false;
    owner->removeCheckList(index);
    aircrafts.saveAircrafts();
    return true;
}

} // namespace skyvane

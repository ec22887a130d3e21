#include "procedures/aircraft/AircraftEditor.h"

#include "core/Context.h"
#include "core/ini/IniFile.h"
#include "core/text/Utf8.h"
#include "displays/MessagePause.h"
#include "gui/windows/IniEditor.h"
#include "gui/windows/Questions.h"
#include "procedures/aircraft/AircraftDocuments.h"
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

} // namespace skyvane

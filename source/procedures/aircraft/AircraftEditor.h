#pragma once

#include "procedures/aircraft/profiles/Aircraft.h"

namespace skyvane {

class AircraftManager;
class Context;

/// Lets the pilot edit name and speeds. Speeds that no aircraft has open the editor again, with a word on why. False,
/// changing nothing, when it was cancelled.
bool editAircraft(Context& context, Aircraft& aircraft);

/// Lets the pilot edit the name and the lines of a checklist. False, changing nothing, when it was cancelled.
bool editCheckList(Context& context, CheckList& list);

// The checklists of the aircraft at a place of the manager's list, which is saved after each change.

/// Asks for a new one. Its index, or -1 when that was cancelled.
int addCheckList(Context& context, AircraftManager& aircrafts, int aircraft);
/// False when it was cancelled.
bool editCheckList(Context& context, AircraftManager& aircrafts, int aircraft, int index);
/// Asks whether it shall go; false when it stays.
bool removeCheckList(Context& context, AircraftManager& aircrafts, int aircraft, int index);

} // namespace skyvane

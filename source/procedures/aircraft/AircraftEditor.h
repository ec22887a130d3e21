#pragma once

#include "procedures/aircraft/profiles/Aircraft.h"

namespace skyvane {

class Context;

/// Lets the pilot edit name and speeds. Speeds that no aircraft has open the editor again, with a word on why. False,
/// changing nothing, when it was cancelled.
bool editAircraft(Context& context, Aircraft& aircraft);

/// Lets the pilot edit the name and the lines of a checklist. False, changing nothing, when it was cancelled.
bool editCheckList(Context& context, CheckList& list);

} // namespace skyvane

#pragma once

#include "chart/geodesy/ChartPosition.h"

namespace skyvane {

class Context;

// What the buttons of a map lead to. `index` is the selected element's id, or MapSelection::None. Main thread only.

/// What is known of the selected element, or of a place without one.
void showMapInfo(Context& context, int index, const ChartPosition& position);

/// Asks from where to where, and adds a procedure that flies there directly behind the current one.
void createDirect(Context& context, int index, const ChartPosition& marked, const ChartPosition& aircraft);

} // namespace skyvane

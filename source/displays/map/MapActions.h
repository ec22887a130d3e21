#pragma once

#include "chart/geodesy/ChartPosition.h"

namespace skyvane {

class Context;
class IChartElement;

// What the buttons of a map lead to. `index` is the selected element's id, or MapSelection::None. Main thread only.

/// What is known of the selected element, or of a place without one.
void showMapInfo(Context& context, int index, const ChartPosition& position);

/// Whether any procedure leads to the element; none to null.
bool areProceduresPossible(Context& context, IChartElement* element);

/// Asks where. What leads to the selected element is chosen on a screen of its own; to another place, a direct flight
/// is added behind the current procedure.
void createProcedure(Context& context, int index, const ChartPosition& marked, const ChartPosition& aircraft);

} // namespace skyvane

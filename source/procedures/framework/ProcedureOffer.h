#pragma once

#include "procedures/framework/IProcedureFactory.h"

#include <memory>
#include <string>
#include <vector>

namespace skyvane {

/// What can be flown to a destination: the lines of a list, or why there is none.
struct ProcedureOffer {
    std::vector<IndicatedProcedure> lines;
    std::string error; ///< In place of all lines.
};

/// Asks every factory, in order. Null as element, with the id 0, stands for the present position.
ProcedureOffer offerProcedures(const std::vector<std::unique_ptr<IProcedureFactory>>& factories, IChartElement* element,
                               int id);

/// The line that is selected at first: the one of before for the same destination, when it is still there; else the
/// last one. -1 without lines.
int selectLine(int count, int previous, bool isSameDestination);

} // namespace skyvane

#pragma once

#include "chartmaker/command/ChartMaker.h"

namespace skyvane {

/// "chartmaker dump": a set or one of its elements as text on standard output. Exit status 1 when the set or an element
/// of it can't be read; what can be is shown all the same.
int runDump(const Arguments& arguments);

} // namespace skyvane

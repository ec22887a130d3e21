#pragma once

#include "chartmaker/command/ChartMaker.h"

namespace skyvane {

/// "chartmaker compile": sources into a chart set. Exit status 0 when the set is written, whatever was refused; 1 when
/// a file can't be read or written, 2 for a wrong argument.
int runCompile(const Arguments& arguments);

} // namespace skyvane

#pragma once

#include "chartmaker/command/ChartMaker.h"

namespace skyvane {

/// "chartmaker levels": the coarser levels, edges and seam of a terrain folder, as the program computes them at a start
/// after new tiles have come. Exit status 1 when a tile can't be written.
int runLevels(const Arguments& arguments);

} // namespace skyvane

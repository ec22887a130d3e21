#pragma once

#include "chartmaker/command/ChartMaker.h"

namespace skyvane {

/// "chartmaker backgrounds": raster charts as the background tiles of the program's folder Images, with their list.
/// What a tile showed stays where the charts show nothing; the folder is marked, so that the program computes the
/// coarser tiles at its next start. Exit status 1 when a chart can't be read or a tile not be written.
int runBackgrounds(const Arguments& arguments);

} // namespace skyvane

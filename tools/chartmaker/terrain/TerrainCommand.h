#pragma once

#include "chartmaker/command/ChartMaker.h"

namespace skyvane {

/// "chartmaker terrain": elevation models as the leaf tiles of the program's folder Terrain, with their list. Heights
/// that a tile had stay where the sources have none; the folder is marked, so that the program computes the coarser
/// levels at its next start. Exit status 1 when a source can't be read or a tile not be written.
int runTerrain(const Arguments& arguments);

} // namespace skyvane

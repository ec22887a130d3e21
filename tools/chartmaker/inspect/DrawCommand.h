#pragma once

#include "chartmaker/command/ChartMaker.h"

namespace skyvane {

/// "chartmaker draw": a part of a set as a picture. Exit status 1 when the set can't be read or the picture not be
/// written; elements that can't be read are left out, and counted on standard error.
int runDraw(const Arguments& arguments);

} // namespace skyvane

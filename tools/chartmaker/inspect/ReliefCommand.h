#pragma once

#include "chartmaker/command/ChartMaker.h"

namespace skyvane {

/// "chartmaker relief": the ground around a place of a terrain folder as the synthetic vision has it, near and wide
/// mesh over each other, as a picture. Exit status 1 when there is no ground or the file can't be written.
int runRelief(const Arguments& arguments);

} // namespace skyvane

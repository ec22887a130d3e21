#pragma once

#include <string>
#include <vector>

namespace skyvane {

using Arguments = std::vector<std::string>;

/// The whole program: picks the command and returns the exit status; 2 for a wrong argument, 1 for a failure.
int runChartMaker(const Arguments& arguments);

/// One line for people on standard error, behind the program's name.
void complain(const std::string& words);

} // namespace skyvane

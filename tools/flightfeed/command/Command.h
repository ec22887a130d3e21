#pragma once

#include <string>
#include <vector>

namespace skyvane {

/// The whole program: reads the arguments, feeds, and returns the exit status; 2 for a wrong argument, 1 for a file or
/// a host that can't be used.
int runFlightFeed(const std::vector<std::string>& arguments);

} // namespace skyvane

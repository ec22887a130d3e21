#pragma once

#include "chart/elements/Frequency.h"

#include <string>
#include <vector>

namespace skyvane {

/// A row of a list for each frequency, UTF-8: its service and its megahertz, as many digits as the channel has. A
/// service that speaks by its name alone is a row as well.
std::vector<std::string> frequencyRows(const FrequencyMap& frequencies);

} // namespace skyvane

#pragma once

#include <string>

namespace skyvane {

/// The first pass over a page: lines that begin with "#" go; so do double quotes without a backslash before them, and
/// outside of such quotes tabs, line feeds, carriage returns and blanks.
std::string cleanMarkup(const std::string& page);

} // namespace skyvane

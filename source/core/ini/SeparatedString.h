#pragma once

#include <string>
#include <vector>

namespace skyvane {

/// Splits at each separator; there are no escapes. Two separators in a row give an empty token; what follows the last
/// separator is a token only when it isn't empty: "a,b," gives two, "" none.
std::vector<std::string> parseSeperatedString(const std::string& text, char separator);

} // namespace skyvane

#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace skyvane {

// What the lists of tiles (.ti, .bg) have in common: text lines with a line feed behind each but the last.

/// A file's text, empty when it can't be read. A list of all tiles there are takes less than the 4 MiB where it is cut.
std::string readListText(const std::string& path);

/// Takes the next line that a line feed ends off the text, without it; leaves a text without one.
bool takeListLine(std::string_view& text, std::string_view& line);

/// A line that is a number from 0 on, of decimal digits alone; nothing for any other, and for one that an int can't
/// hold.
std::optional<int> parseListNumber(std::string_view line);

} // namespace skyvane

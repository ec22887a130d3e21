#pragma once

#include <string_view>

namespace skyvane {

/// Reads a text that is one finite number from its first to its last letter, whatever the locale.
/// False, and nothing changed, otherwise.
bool parseStrictNumber(std::string_view text, double& value);

} // namespace skyvane

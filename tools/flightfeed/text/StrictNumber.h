#pragma once

#include <string>

namespace skyvane {

/// Reads a text that is one finite number from its first to its last letter, whatever the locale.
/// False, and nothing changed, otherwise.
bool parseStrictNumber(const std::string& text, double& value);

} // namespace skyvane

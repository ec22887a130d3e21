#pragma once

#include <string>
#include <vector>

namespace skyvane {

/// The words of a name as the index takes them: what stands between separators (blanks and most ASCII signs). A word
/// that a separator ends counts from two characters on, the last word of the text from one.
std::vector<std::string> splitIntoWords(const std::string& text);

} // namespace skyvane

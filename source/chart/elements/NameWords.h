#pragma once

#include <string>
#include <vector>

namespace skyvane {

/// The words of a name as the index takes them: what stands between separators (blanks and most ASCII signs). A word
/// that a separator ends counts from two characters on, the last word of the text from one.
std::vector<std::string> splitIntoWords(const std::string& text);

/// Whether two names are the same to the index, which knows upper case only (ASCII letters).
bool isSameName(const std::string& a, const std::string& b);

} // namespace skyvane

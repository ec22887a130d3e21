#pragma once

#include <map>
#include <string>

namespace skyvane {

/// One line of a font file: its tag and the values of its keys, the last of a repeated key winning.
struct FntLine {
    std::string tag;
    std::map<std::string, std::string> values;

    /// Reads `tag key=value key="value with blanks" ...`; any bytes give some line.
    static FntLine parse(const std::string& text);

    /// The value as a whole number, `fallback` when there is none.
    int number(const char* key, int fallback) const;
};

} // namespace skyvane

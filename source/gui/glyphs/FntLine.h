#pragma once

#include <string_view>
#include <utility>
#include <vector>

namespace skyvane {

/// One line of a font file: its tag and the values of its keys, as views into the text, which must outlive them.
/// A line is reused for the next one: a font has thousands, and they are read at every start.
class FntLine {
public:
    /// Reads `tag key=value key="value with blanks" ...`; any bytes give some line.
    void parse(std::string_view text);

    std::string_view tag() const { return tag_; }
    /// The value of a key, the last of a repeated one; null when there is none.
    const std::string_view* find(std::string_view key) const;
    /// The value as a whole number, `fallback` when there is none.
    int number(std::string_view key, int fallback) const;

private:
    std::string_view tag_;
    std::vector<std::pair<std::string_view, std::string_view>> values_;
};

} // namespace skyvane

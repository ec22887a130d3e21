#include "gui/glyphs/FntLine.h"

#include "core/text/Numbers.h"
#include <algorithm>

namespace skyvane {

namespace {

constexpr const char* blanks = " \t\r";

/// The value that starts at `position`, which moves behind it.
std::string takeValue(const std::string& text, size_t& position) {
    const bool quoted = position < text.size() && text[position] == '"';
    const size_t start = quoted ? position + 1 : position;
    const size_t end = std::min(text.size(), quoted ? text.find('"', start) : text.find_first_of(blanks, start));
    position = std::min(text.size(), quoted ? end + 1 : end);
    return text.substr(start, end - start);
}

} // namespace

FntLine FntLine::parse(const std::string& text) {
    FntLine line;
    size_t position = std::min(text.size(), text.find_first_not_of(blanks));
    const size_t tagEnd = std::min(text.size(), text.find_first_of(blanks, position));
    line.tag = text.substr(position, tagEnd - position);
    position = tagEnd;
    while ((position = text.find_first_not_of(blanks, position)) != std::string::npos) {
        const size_t end = std::min(text.size(), text.find_first_of("= \t\r", position));
        const std::string key = text.substr(position, end - position);
        position = end;
        if (position == text.size() || text[position] != '=')
            continue;
        ++position;
        line.values[key] = takeValue(text, position);
    }
    return line;
}

int FntLine::number(const char* key, int fallback) const {
    const auto found = values.find(key);
    return found == values.end() ? fallback : toInt(found->second, fallback);
}

} // namespace skyvane

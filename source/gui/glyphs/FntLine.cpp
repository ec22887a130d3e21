#include "gui/glyphs/FntLine.h"

#include "core/text/Numbers.h"
#include <algorithm>

namespace skyvane {

namespace {

constexpr const char* blanks = " \t\r";

/// The value that starts at `position`, which moves behind it.
std::string_view takeValue(std::string_view text, size_t& position) {
    const bool quoted = position < text.size() && text[position] == '"';
    const size_t start = quoted ? position + 1 : position;
    const size_t end = std::min(text.size(), quoted ? text.find('"', start) : text.find_first_of(blanks, start));
    position = std::min(text.size(), quoted ? end + 1 : end);
    return text.substr(start, end - start);
}

} // namespace

void FntLine::parse(std::string_view text) {
    values_.clear();
    size_t position = std::min(text.size(), text.find_first_not_of(blanks));
    const size_t tagEnd = std::min(text.size(), text.find_first_of(blanks, position));
    tag_ = text.substr(position, tagEnd - position);
    position = tagEnd;
    while ((position = text.find_first_not_of(blanks, position)) != std::string_view::npos) {
        const size_t end = std::min(text.size(), text.find_first_of("= \t\r", position));
        const std::string_view key = text.substr(position, end - position);
        position = end;
        if (position == text.size() || text[position] != '=')
            continue;
        ++position;
        values_.emplace_back(key, takeValue(text, position));
    }
}

const std::string_view* FntLine::find(std::string_view key) const {
    const auto found =
        std::find_if(values_.rbegin(), values_.rend(), [key](const auto& value) { return value.first == key; });
    return found == values_.rend() ? nullptr : &found->second;
}

int FntLine::number(std::string_view key, int fallback) const {
    const std::string_view* value = find(key);
    return value ? toInt(*value, fallback) : fallback;
}

} // namespace skyvane

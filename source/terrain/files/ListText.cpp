#include "terrain/files/ListText.h"

#include "core/files/RandomAccessFile.h"

#include <algorithm>
#include <charconv>

namespace skyvane {
namespace {

constexpr size_t LongestList = 4 * 1024 * 1024;

} // namespace

std::string readListText(const std::string& path) {
    const RandomAccessFile file(path);
    std::string text(std::min<uint64_t>(file.getSize(), LongestList), '\0');
    return file.good() && file.read(0, text.data(), text.size()) ? text : std::string();
}

bool takeListLine(std::string_view& text, std::string_view& line) {
    const size_t end = text.find('\n');
    if (end == std::string_view::npos)
        return false;
    line = text.substr(0, end);
    text.remove_prefix(end + 1);
    return true;
}

std::optional<int> parseListNumber(std::string_view line) {
    int number = 0;
    const char* end = line.data() + line.size();
    const auto result = std::from_chars(line.data(), end, number);
    const bool isNumber = !line.empty() && line.front() != '-' && result.ec == std::errc() && result.ptr == end;
    return isNumber ? std::optional<int>(number) : std::nullopt;
}

} // namespace skyvane

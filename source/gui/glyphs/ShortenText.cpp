#include "gui/glyphs/ShortenText.h"

namespace skyvane {
namespace {

constexpr wchar_t ellipsis = L'\u2026';

/// Without blanks before the ellipsis.
std::wstring cutBehind(const std::wstring& line, size_t length) {
    const std::wstring start = line.substr(0, length);
    return start.substr(0, start.find_last_not_of(L" \t") + 1) + ellipsis;
}

} // namespace

std::wstring shortenText(const std::wstring& line, unsigned width, const ITextWidth& measure) {
    if (measure.widthOf(line) <= width)
        return line;
    size_t fits = 0, tooLong = line.size();
    while (tooLong - fits > 1) {
        const size_t middle = fits + (tooLong - fits) / 2;
        (measure.widthOf(cutBehind(line, middle)) <= width ? fits : tooLong) = middle;
    }
    return cutBehind(line, fits);
}

} // namespace skyvane

#include "gui/layoutmath/ShortText.h"

#include <algorithm>

namespace skyvane {
namespace {

constexpr const wchar_t* gap = L"...";

} // namespace

std::wstring keepEnd(const std::wstring& text, size_t head, const std::function<bool(const std::wstring&)>& fits) {
    if (fits(text))
        return text;
    const size_t kept = std::min(head, text.size());
    const std::wstring begin = text.substr(0, kept) + gap;
    size_t least = kept, most = text.size(); // where the end begins: what fits begins late
    while (least < most) {
        const size_t middle = least + (most - least) / 2;
        if (fits(begin + text.substr(middle)))
            most = middle;
        else
            least = middle + 1;
    }
    return begin + text.substr(least);
}

std::wstring keepBegin(const std::wstring& text, const std::function<bool(const std::wstring&)>& fits) {
    if (fits(text))
        return text;
    const auto cut = [&text](size_t length) {
        const std::wstring begin = text.substr(0, length);
        return begin.substr(0, begin.find_last_not_of(L" \t") + 1) + gap;
    };
    size_t most = 0, tooLong = text.size();
    while (tooLong - most > 1) {
        const size_t middle = most + (tooLong - most) / 2;
        (fits(cut(middle)) ? most : tooLong) = middle;
    }
    return cut(most);
}

} // namespace skyvane

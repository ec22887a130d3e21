#include "gui/layoutmath/ShortText.h"

#include <algorithm>

namespace skyvane {

std::wstring keepEnd(const std::wstring& text, size_t head, const std::function<bool(const std::wstring&)>& fits) {
    if (fits(text))
        return text;
    const size_t kept = std::min(head, text.size());
    const std::wstring begin = text.substr(0, kept) + L"...";
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

} // namespace skyvane

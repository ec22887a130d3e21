#include "gui/keys/WipeDial.h"

#include "gui/keys/EditBoxId.h"

#include <algorithm>
#include <cmath>
#include <cwctype>

namespace skyvane {

const std::wstring& wipeAlphabet(int editBoxId) {
    static const std::wstring all = L"ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
    static const std::wstring integers = L"0123456789-";
    static const std::wstring decimals = L"0123456789.-";
    return editBoxId == IntegerEdit ? integers : editBoxId == DecimalEdit ? decimals : all;
}

void WipeDial::rest(const std::wstring& alphabet, wchar_t last) {
    active_ = false;
    if (!alphabet.empty())
        alphabet_ = alphabet;
    const std::size_t found = alphabet_.find(static_cast<wchar_t>(std::towupper(static_cast<wint_t>(last))));
    startIndex_ = found == std::wstring::npos ? 0 : found;
    place_ = {startIndex_, 0.5};
}

void WipeDial::start(int y, int areaHeight, int steps) {
    startY_ = y;
    stepHeight_ = static_cast<double>(std::max(1, areaHeight)) / std::max(1, steps);
    active_ = true;
    move(y);
}

void WipeDial::move(int y) {
    if (!active_)
        return;
    const double turned = (static_cast<double>(startY_) - y) / stepHeight_ + 0.5;
    const double whole = std::floor(turned);
    place_ = {wrapped(static_cast<long>(startIndex_) + static_cast<long>(whole)), turned - whole};
}

wchar_t WipeDial::getCharacter(int offset) const {
    return alphabet_[wrapped(static_cast<long>(place_.index) + offset)];
}

std::size_t WipeDial::wrapped(long index) const {
    const long length = static_cast<long>(alphabet_.size());
    return static_cast<std::size_t>((index % length + length) % length);
}

} // namespace skyvane

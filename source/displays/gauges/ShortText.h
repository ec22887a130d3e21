#pragma once

#include <array>
#include <string>
#include <string_view>

namespace skyvane {

/// A short text of a display in a place of its own: making one allocates nothing. What doesn't fit is cut off.
class ShortText {
public:
    ShortText() = default;
    ShortText(const wchar_t* text) { append(std::wstring_view(text)); }

    ShortText& append(std::wstring_view text) {
        for (wchar_t c : text)
            put(c);
        return *this;
    }
    ShortText& append(std::string_view ascii) {
        for (char c : ascii)
            put(static_cast<wchar_t>(static_cast<unsigned char>(c)));
        return *this;
    }
    ShortText& append(const wchar_t* text) { return append(std::wstring_view(text)); }

    const wchar_t* c_str() const { return text_.data(); }
    std::wstring_view view() const { return {text_.data(), length_}; }
    bool operator==(const ShortText& other) const { return view() == other.view(); }

private:
    void put(wchar_t c) {
        if (length_ + 1 < text_.size()) {
            text_[length_++] = c;
            text_[length_] = L'\0';
        }
    }

    std::array<wchar_t, 64> text_{};
    size_t length_ = 0;
};

/// One decimal and the unit: "-2.5 °/s".
ShortText formatTurnRate(double degreesPerSecond);
/// One decimal: "1.0".
ShortText formatLoad(double load);

} // namespace skyvane

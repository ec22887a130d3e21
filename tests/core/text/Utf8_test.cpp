#include "core/text/Utf8.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

TEST(Utf8, carriesEveryCodePoint) {
    std::wstring all;
    for (int point = 1; point <= 0x10FFFF; ++point)
        if (point < 0xD800 || point > 0xDFFF)
            all += static_cast<wchar_t>(point);
    EXPECT_EQ(decodeUtf8(encodeUtf8(all)), all);
    EXPECT_EQ(encodeUtf8(L"\u00B0\u20AC\U0001F6E9"), "\xC2\xB0\xE2\x82\xAC\xF0\x9F\x9B\xA9");
}

TEST(Utf8, marksWhatIsMalformed) {
    EXPECT_EQ(decodeUtf8("a\x80z"), L"a?z");
    EXPECT_EQ(decodeUtf8("\xC0\xAF"), L"??");
    EXPECT_EQ(decodeUtf8("\xE0\x80\xAF."), L"?.") << "overlong";
    EXPECT_EQ(decodeUtf8("\xED\xA0\x80."), L"?.") << "surrogate";
    EXPECT_EQ(decodeUtf8("\xF4\x90\x80\x80."), L"?.") << "beyond the last code point";
    EXPECT_EQ(decodeUtf8("\xE2\x82"), L"?") << "cut short";
    EXPECT_EQ(decodeUtf8("\xE2\x82\xC3\xA4"), L"?\u00E4") << "goes on at the next first byte";
    EXPECT_EQ(decodeUtf8("\xFF\xFE"), L"??");
    EXPECT_EQ(encodeUtf8({static_cast<wchar_t>(0xD800), static_cast<wchar_t>(0x110000), static_cast<wchar_t>(-1)}),
              "???");
}

} // namespace
} // namespace skyvane

#include "gui/glyphs/ShortenText.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

/// Ten pixels a character.
class PlainWidth : public ITextWidth {
public:
    unsigned widthOf(const std::wstring& line) const override { return static_cast<unsigned>(10 * line.size()); }
};

std::wstring shorten(const std::wstring& line, unsigned width) {
    return shortenText(line, width, PlainWidth());
}

TEST(ShortenText, KeepsAsMuchAsFits) {
    EXPECT_EQ(L"Round trip", shorten(L"Round trip", 100));
    EXPECT_EQ(L"Round tr\u2026", shorten(L"Round trip", 99));
    EXPECT_EQ(L"Round\u2026", shorten(L"Round trip", 70)) << "no blank before the ellipsis";
    EXPECT_EQ(L"R\u2026", shorten(L"Round trip", 20));
    EXPECT_EQ(L"", shorten(L"", 0));
    for (const unsigned width : {0u, 9u, 19u})
        EXPECT_EQ(L"\u2026", shorten(L"Round trip", width));
    EXPECT_EQ(L"\u2026", shorten(L"    x", 40));
    const std::wstring endless(100000, L'm');
    for (unsigned width = 20; width < 2000; width += 7)
        EXPECT_EQ(width / 10, shorten(endless, width).size());
}

} // namespace
} // namespace skyvane

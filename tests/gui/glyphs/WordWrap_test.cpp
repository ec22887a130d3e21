#include "gui/glyphs/WordWrap.h"
#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace skyvane {

namespace {

/// Ten pixels a character, a hyphen four.
class PlainWidth : public ITextWidth {
public:
    unsigned widthOf(const std::wstring& line) const override {
        const auto hyphens = std::count(line.begin(), line.end(), L'-');
        return static_cast<unsigned>(10 * (static_cast<long>(line.size()) - hyphens) + 4 * hyphens);
    }
};

std::wstring wrap(const std::wstring& text, unsigned width, bool hyphenate = true, bool trim = true) {
    WordWrapOptions options;
    options.hyphenate = hyphenate;
    options.trimLineEnds = trim;
    return wrapWords(text, width, PlainWidth(), options);
}

} // namespace

TEST(WordWrap, breaksAtTheLastBlank) {
    EXPECT_EQ(wrap(L"one two three", 75), L"one two\nthree");
    EXPECT_EQ(wrap(L"one two three", 70), L"one two\nthree"); // the blank itself is what goes beyond
    EXPECT_EQ(wrap(L"one\ttwo", 35), L"one\ntwo");
    EXPECT_EQ(wrap(L"fits well", 90), L"fits well");
    EXPECT_EQ(wrap(L"", 10), L"");
}

TEST(WordWrap, keepsTheLineFeedsOfTheText) {
    EXPECT_EQ(wrap(L"a\n\nb c", 100), L"a\n\nb c");
    EXPECT_EQ(wrap(L"one two\nthree four", 75), L"one two\nthree\nfour");
    EXPECT_EQ(wrap(L"a\n", 100), L"a\n");
}

TEST(WordWrap, cutsAWordThatIsTooLong) {
    EXPECT_EQ(wrap(L"abcdefgh", 45, true), L"abc-\ndef-\ngh");
    EXPECT_EQ(wrap(L"abcdefgh", 45, false), L"abc\ndef\ngh");
    EXPECT_EQ(wrap(L"it abcdefgh", 45, true), L"it\nabc-\ndef-\ngh");
}

TEST(WordWrap, neverGoesWithoutACharacter) {
    EXPECT_EQ(wrap(L"abc", 0, false), L"a\nb\nc");
    EXPECT_EQ(wrap(L"abc", 5, true), L"a-\nb-\nc");
}

TEST(WordWrap, trimsBlanksBeforeLineFeedsOnRequest) {
    EXPECT_EQ(wrap(L"one  \ntwo  ", 200, true, true), L"one\ntwo");
    EXPECT_EQ(wrap(L"one  \ntwo  ", 200, true, false), L"one  \ntwo  ");
}

TEST(WordWrap, linesFitAndNoLetterIsLost) {
    std::mt19937 random(77);
    const PlainWidth measure;
    for (int round = 0; round < 500; ++round) {
        std::wstring text;
        for (int length = static_cast<int>(random() % 80); length > 0; --length)
            text += L"abcdefgh   \n"[random() % 12];
        const unsigned width = 20 + random() % 100;
        const std::wstring wrapped = wrap(text, width) + L'\n';
        for (size_t start = 0; start < wrapped.size(); start = wrapped.find(L'\n', start) + 1)
            EXPECT_LE(measure.widthOf(wrapped.substr(start, wrapped.find(L'\n', start) - start)), width);
        const auto letters = [](std::wstring all) {
            all.erase(std::remove_if(all.begin(), all.end(), [](wchar_t c) { return c < L'a'; }), all.end());
            return all;
        };
        EXPECT_EQ(letters(wrapped), letters(text));
    }
}

} // namespace skyvane

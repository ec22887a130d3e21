#include "gui/glyphs/IterateOverString.h"
#include "gui/glyphs/Smoothing.h"
#include "gui/glyphs/TextMeasure.h"
#include <gtest/gtest.h>
#include <random>

namespace skyvane {

namespace {

FontDefinition makeFont() {
    FontDefinition font;
    font.lineHeight = 20;
    font.base = 15;
    font.characters[L' '] = {L' ', 0, 0, 0, 0, 0, 0, 5, {}};
    font.characters[L'A'] = {L'A', 0, 0, 9, 12, 1, 2, 10, {}};
    font.characters[L'V'] = {L'V', 0, 0, 8, 12, -1, 3, 8, {}};
    font.kernings[L"AV"] = -3;
    font.kernings[L" A"] = 1;
    font.kernings[L"\nA"] = 100;
    font.kernings[L"\tA"] = 7;
    return font;
}

/// One line per call: glyph@index:x,y, or |width at the end of a line.
class Transcript : public ICharacterCallback {
public:
    std::string text;
    void OnCharacter(const FontCharacter& character, int index, int x, int y) override {
        text += std::string(1, static_cast<char>(character.id)) + "@" + std::to_string(index) + ":" +
                std::to_string(x) + "," + std::to_string(y) + " ";
    }
    void OnLineFinished(int width) override { text += "|" + std::to_string(width) + " "; }
};

std::string walk(const std::wstring& text, int tabSize = 4) {
    Transcript transcript;
    iterateOverString(text.data(), text.size(), tabSize, makeFont(), transcript);
    return transcript.text;
}

irr::core::dimension2d<irr::u32> measure(const std::wstring& text, float scale = 1.0f) {
    return measureText(text.data(), text.size(), 4, makeFont(), {scale, scale});
}

/// The width again, line by line, with no walk in common.
int widthByHand(const std::wstring& text, int tabSize) {
    const FontDefinition font = makeFont();
    int widest = 0;
    int x = 0;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] == L'\n' || text[i] == L'\r') {
            widest = text[i] == L'\n' ? std::max(widest, x) : widest; // a tab counts only where a line ends with it
            x = 0;
        } else if (text[i] == L'\t') {
            do
                ++x;
            while (x % (5 * tabSize) != 0);
        } else {
            const auto pair = i == 0 ? font.kernings.end() : font.kernings.find(text.substr(i - 1, 2));
            const auto glyph = font.characters.find(text[i]);
            x += pair == font.kernings.end() ? 0 : pair->second;
            x += glyph == font.characters.end() ? 5 : glyph->second.xadvance;
            widest = std::max(widest, x);
        }
    }
    return std::max(widest, x);
}

} // namespace

TEST(IterateOverString, placesGlyphsWithOffsetsAndKerning) {
    EXPECT_EQ(walk(L"AVA"), "A@0:1,2 V@1:6,3 A@2:16,2 |25 ");
    EXPECT_EQ(walk(L""), "|0 ");
}

TEST(IterateOverString, missingGlyphsAreSpaces) {
    EXPECT_EQ(walk(L"A\u4e2dV"), "A@0:1,2  @1:10,0 V@2:14,3 |23 ");
}

TEST(IterateOverString, tabStopsCountFromTheLineStart) {
    EXPECT_EQ(walk(L"A\tV"), "A@0:1,2 V@2:19,3 |28 ");
    EXPECT_EQ(walk(L"A\n\tV"), "A@0:1,2 |10 V@3:19,23 |28 ");
    EXPECT_EQ(walk(L"AA\tV"), "A@0:1,2 A@1:11,2 V@3:39,3 |48 ");
    EXPECT_EQ(walk(L"A\tV", 0), "A@0:1,2 V@2:9,3 |18 ");
    EXPECT_EQ(walk(L"A\tV", -7), walk(L"A\tV", 0));
}

TEST(IterateOverString, kerningKeyShiftsWithEveryCharacter) {
    EXPECT_EQ(walk(L"A\nV"), "A@0:1,2 |10 V@2:-1,23 |8 ");
    EXPECT_EQ(walk(L"\nA"), "|0 A@1:101,22 |110 ");
    EXPECT_EQ(walk(L"\tA"), "A@1:28,2 |37 ");
    EXPECT_EQ(walk(L"A\rV"), "A@0:1,2 V@2:-1,3 |8 ");
}

TEST(IterateOverString, aFontWithoutSpaceGivesNoGlyphs) {
    Transcript transcript;
    iterateOverString(L"A", 1, 4, FontDefinition(), transcript);
    EXPECT_EQ(transcript.text, "|0 ");
}

TEST(TextMeasure, agreesWithMeasuringByHand) {
    std::mt19937 random(20240607);
    const std::wstring alphabet = L"AAVV  \n\t\rx";
    for (int round = 0; round < 2000; ++round) {
        std::wstring text;
        for (size_t length = random() % 20; length > 0; --length)
            text += alphabet[random() % alphabet.size()];
        EXPECT_EQ(measure(text).Width, static_cast<unsigned>(widthByHand(text, 4))) << testing::PrintToString(text);
    }
}

TEST(TextMeasure, heightIsThatOfTheLastLineWithAGlyph) {
    EXPECT_EQ(measure(L"").Height, 20u);
    EXPECT_EQ(measure(L"A\nA").Height, 40u);
    EXPECT_EQ(measure(L"A\n\nA").Height, 60u);
    EXPECT_EQ(measure(L"A", 1.26f).Width, 13u);
    EXPECT_EQ(measure(L"A", 0.0f).Width, 0u);
    EXPECT_EQ(measure(L"A", -1.0f).Width, 0u);
    EXPECT_EQ(measure(L"A", NAN).Width, 0u);
}

TEST(TextMeasure, hugeTextsStayInRange) {
    FontDefinition font = makeFont();
    font.characters[L'A'].xadvance = 4096;
    font.lineHeight = 4096;
    const std::wstring wide(700000, L'A');
    EXPECT_EQ(measureText(wide.data(), wide.size(), 4, font, {1.0f, 1.0f}).Width, (1u << 28) + 4096u);
    const std::wstring high(700000, L'\n');
    EXPECT_EQ(measureText((high + L"A").data(), high.size() + 1, 4, font, {1.0f, 1.0f}).Height, (1u << 28) + 4096u);
}

TEST(TextMeasure, findsTheCharacterAtAPlace) {
    const FontDefinition font = makeFont();
    const auto at = [&font](float x) { return findCharacterAt(L"AAA", 3, 4, font, x); };
    EXPECT_EQ(at(-1.0f), -1); // before the first
    EXPECT_EQ(at(0.0f), 0);
    EXPECT_EQ(at(9.5f), 0);
    EXPECT_EQ(at(10.0f), 1);
    EXPECT_EQ(at(25.0f), -1); // no glyph starts right of it
}

TEST(TextMeasure, optimalScaleIsTheTighterAxis) {
    EXPECT_FLOAT_EQ(optimalScale({99, 19}, {200, 10}), 0.5f);
    EXPECT_FLOAT_EQ(optimalScale({99, 19}, {50, 100}), 0.5f);
    EXPECT_FLOAT_EQ(optimalScale({0, 0}, {3, 5}), 3.0f);
}

TEST(Smoothing, keepsTheEdgeOnePixelWide) {
    EXPECT_FLOAT_EQ(edgeSmoothing(1.5f, {1.0f, 1.0f}, 0.5f), 1.5f / 16.0f);
    EXPECT_FLOAT_EQ(edgeSmoothing(1.5f, {2.0f, 2.0f}, 0.5f), 0.75f / 16.0f);
    EXPECT_FLOAT_EQ(edgeSmoothing(1.5f, {0.1f, 0.1f}, 0.5f), 0.5f); // the surroundings stay clear
    EXPECT_FLOAT_EQ(edgeSmoothing(1.5f, {0.0f, 0.0f}, 0.5f), 0.5f);
    EXPECT_GT(edgeSmoothing(0.0f, {1.0f, 1.0f}, 0.0f), 0.0f);
}

} // namespace skyvane

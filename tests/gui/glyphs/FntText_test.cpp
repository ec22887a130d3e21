#include "gui/glyphs/FntText.h"
#include "gui/glyphs/FntWriter.h"
#include "support/SourceFolder.h"
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace skyvane {

namespace {

const std::string golden = "info face=\"My Font\" size=42 bold=0 unicode=1\r\n"
                           "common lineHeight=49 base=39 scaleW=64 scaleH=32 pages=1\r\n"
                           "page id=0 file=\"my page.png\"\r\n"
                           "chars count=2\r\n"
                           "char id=32   x=0 y=0 width=0 height=0 xoffset=0 yoffset=0 xadvance=10 page=0  chnl=8\r\n"
                           "char id=65\tx=2 y=3 width=20 height=30 xoffset=-4 yoffset=5 xadvance=25 page=0\r\n"
                           "kernings count=1\r\n"
                           "kerning first=65 second=86 amount=-3\r\n";

FntText parse(const std::string& text) {
    return parseFntText(text.data(), text.size());
}

std::string withLine(const std::string& line) {
    return golden + line + "\n";
}

std::string replaced(const std::string& from, const std::string& to) {
    std::string text = golden;
    return text.replace(text.find(from), from.size(), to);
}

} // namespace

TEST(FntText, readsAFont) {
    const FntText text = parse(golden);
    EXPECT_EQ(text.error, "");
    EXPECT_EQ(text.pageFile, "my page.png");
    EXPECT_EQ(text.definition.size, 42);
    EXPECT_EQ(text.definition.lineHeight, 49);
    EXPECT_EQ(text.definition.base, 39);
    ASSERT_EQ(text.definition.characters.size(), 2u);
    const FontCharacter& a = text.definition.characters.at(L'A');
    EXPECT_EQ(a.id, 65);
    EXPECT_EQ(a.x, 2);
    EXPECT_EQ(a.y, 3);
    EXPECT_EQ(a.width, 20);
    EXPECT_EQ(a.height, 30);
    EXPECT_EQ(a.xoffset, -4);
    EXPECT_EQ(a.yoffset, 5);
    EXPECT_EQ(a.xadvance, 25);
    EXPECT_EQ(text.definition.findKerning(L'A', L'V'), -3);
    EXPECT_EQ(text.definition.findKerning(L'V', L'A'), 0);
}

TEST(FntText, takesLinesInAnyOrderAndIgnoresWhatItDoesNotKnow) {
    const FntText text = parse("kerning first=65 second=86 amount=2\nnonsense ===\"\" x\n" + golden);
    EXPECT_EQ(text.error, "");
    EXPECT_EQ(text.definition.characters.size(), 2u);
    EXPECT_EQ(parse(withLine("char id=-1 x=1 xadvance=5")).definition.characters.size(), 2u);
}

TEST(FntText, refusesFontsThatCannotBeUsed) {
    EXPECT_EQ(parse(replaced("id=32 ", "id=33 ")).error, "no space glyph");
    EXPECT_EQ(parse(replaced("xadvance=10", "xadvance=0")).error, "the space glyph has no advance");
    EXPECT_EQ(parse(replaced("page id=0", "page id=1")).error, "no page 0");
    EXPECT_EQ(parse(replaced("lineHeight=49", "lineHeight=0")).error, "line measures out of range");
    EXPECT_EQ(parse(withLine("char id=66 x=99999 xadvance=3")).error, "glyph 66 lies outside of any page");
    EXPECT_EQ(parse(withLine("char id=66 width=-1 xadvance=3")).error, "glyph 66 lies outside of any page");
    EXPECT_EQ(parse(withLine("char id=66 xadvance=2000000000")).error, "glyph 66 has measures out of range");
    EXPECT_EQ(parse(withLine("kerning first=65 second=66 amount=99999")).error, "kerning out of range");
    EXPECT_EQ(parse("").error, "no page 0");
    EXPECT_EQ(parse(std::string(1000, '\0')).error, "no page 0");
}

TEST(FntText, refusesMoreGlyphsThanAnyPageHolds) {
    std::string text = golden;
    for (int id = 100; id < 66000; ++id)
        text += "char id=" + std::to_string(id) + " xadvance=1\n";
    EXPECT_EQ(parse(text).error, "too many glyphs");
}

TEST(FntText, pageNeverLeavesTheFolder) {
    EXPECT_EQ(parse(replaced("my page.png", "../../etc/page.png")).pageFile, "page.png");
    EXPECT_EQ(parse(replaced("my page.png", "C:\\fonts\\page.png")).pageFile, "page.png");
    for (const char* none : {"..", "a/..", ".", "folder/", ""})
        EXPECT_EQ(parse(replaced("my page.png", none)).error, "no page 0") << none;
}

TEST(FntText, everyTruncationGivesAFontOrAWord) {
    for (size_t length = 0; length < golden.size(); ++length) {
        const FntText text = parse(golden.substr(0, length));
        if (text.error.empty()) {
            EXPECT_GT(text.definition.findCharacter(L' ')->xadvance, 0) << length;
            EXPECT_GT(text.definition.lineHeight, 0) << length;
        }
    }
}

TEST(FntText, writerAndReaderAgree) {
    const FontDefinition font = parse(golden).definition;
    const std::string written = writeFntText(font, {"Face", "page.png", {64, 32}, 4});
    const FntText again = parse(written);
    EXPECT_EQ(again.error, "");
    EXPECT_EQ(again.pageFile, "page.png");
    EXPECT_EQ(again.definition.kernings, font.kernings);
    EXPECT_EQ(writeFntText(again.definition, {"Face", "page.png", {64, 32}, 4}), written);
}

TEST(FontDefinition, textureRectanglesAreFractionsOfThePage) {
    FontDefinition font = parse(golden).definition;
    font.convertFontCoords2TexCoords({64, 32}, false);
    const GlyphTexture corners = font.characters.at(L'A').texture;
    EXPECT_FLOAT_EQ(corners.left, 2.0f / 64);
    EXPECT_FLOAT_EQ(corners.top, 3.0f / 32);
    EXPECT_FLOAT_EQ(corners.right, 22.0f / 64);
    EXPECT_FLOAT_EQ(corners.bottom, 33.0f / 32);
    font.convertFontCoords2TexCoords({64, 32}, true);
    EXPECT_FLOAT_EQ(font.characters.at(L'A').texture.left, 2.5f / 64);
    font.convertFontCoords2TexCoords({0, 0}, true);
    EXPECT_FLOAT_EQ(font.characters.at(L'A').texture.left, 2.5f / 64);
}

class ShippedFont : public testing::TestWithParam<const char*> {
protected:
    FntText font() const {
        std::ifstream file(sourceFolder() + "media/sdff/" + GetParam(), std::ios::binary);
        return parse(std::string(std::istreambuf_iterator<char>(file), {}));
    }
};

TEST_P(ShippedFont, hasTheCharactersOfTheTexts) {
    const FntText text = font();
    ASSERT_EQ(text.error, "");
    std::wstring wanted = L"°®←↑→↓–−…×·ΩΔµ±€";
    for (wchar_t code = 0x20; code < 0x17F; ++code)
        if (code < 0x7F || code > 0x9F)
            wanted += code;
    for (wchar_t code = 0x391; code < 0x3CA; ++code)
        if (code != 0x3A2)
            wanted += code;
    for (const wchar_t character : wanted)
        EXPECT_EQ(text.definition.characters.count(character), 1u) << std::hex << static_cast<unsigned>(character);
}

TEST_P(ShippedFont, hasKerningAndDigitsOfOneWidth) {
    const FontDefinition font_ = font().definition;
    EXPECT_LT(font_.findKerning(L'A', L'V'), 0);
    EXPECT_LT(font_.findKerning(L'T', L'o'), 0);
    EXPECT_EQ(font_.findKerning(L'1', L'1'), 0);
    for (wchar_t digit = L'1'; digit <= L'9'; ++digit)
        EXPECT_EQ(font_.findCharacter(digit)->xadvance, font_.findCharacter(L'0')->xadvance);
}

TEST_P(ShippedFont, glyphsDoNotTouchOnThePage) {
    const FontDefinition font_ = font().definition;
    const auto room = [](const FontCharacter& glyph) {
        return irr::core::rect<int>(glyph.x - 1, glyph.y - 1, glyph.x + glyph.width + 1, glyph.y + glyph.height + 1);
    };
    for (auto one = font_.characters.begin(); one != font_.characters.end(); ++one)
        for (auto other = std::next(one); other != font_.characters.end(); ++other)
            EXPECT_FALSE(one->second.width && other->second.width &&
                         room(one->second).isRectCollided(room(other->second)))
                << one->first << " " << other->first;
}

INSTANTIATE_TEST_SUITE_P(Fonts, ShippedFont, testing::Values("ubuntu-regular.fnt", "roboto-regular.fnt"));

} // namespace skyvane

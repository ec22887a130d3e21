#include "fontatlas/AtlasBuilder.h"
#include "fontatlas/CharacterList.h"
#include "fontatlas/DistanceField.h"
#include "fontatlas/DrawnGlyphs.h"
#include "fontatlas/PngWriter.h"
#include "fontatlas/ShelfPacker.h"
#include "support/SourceFolder.h"
#include <cmath>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <random>
#include <zlib.h>

namespace skyvane {

namespace {

constexpr const char* roboto = "/usr/share/fonts/truetype/roboto/unhinted/RobotoTTF/Roboto-Regular.ttf";

/// The distance from a place to the nearest pixel of the other kind, tried one by one.
float nearestOther(const GrayImage& shape, int x, int y) {
    float nearest = 1e9f;
    for (int otherY = 0; otherY < shape.height; ++otherY)
        for (int otherX = 0; otherX < shape.width; ++otherX)
            if ((shape.at(otherX, otherY) != 0) != (shape.at(x, y) != 0))
                nearest = std::min(nearest, std::hypot(float(otherX - x), float(otherY - y)));
    return nearest - 0.5f;
}

} // namespace

TEST(DistanceField, agreesWithTryingEveryPixel) {
    std::mt19937 random(11);
    for (int round = 0; round < 5; ++round) {
        GrayImage shape{24, 16, std::vector<uint8_t>(24 * 16)};
        for (int blot = 0; blot < 3; ++blot) {
            const int left = static_cast<int>(random() % 20);
            const int top = static_cast<int>(random() % 12);
            for (int y = top; y < top + 4; ++y)
                for (int x = left; x < left + 4; ++x)
                    shape.at(x, y) = 1;
        }
        const GrayImage half = makeDistanceField(shape, 2, 4);
        ASSERT_EQ(half.width, 12);
        for (int y = 0; y < half.height; ++y) {
            for (int x = 0; x < half.width; ++x) {
                float sum = 0.0f;
                for (int corner = 0; corner < 4; ++corner) {
                    const int cx = 2 * x + corner % 2;
                    const int cy = 2 * y + corner / 2;
                    sum += (shape.at(cx, cy) ? 1.0f : -1.0f) * nearestOther(shape, cx, cy);
                }
                const float expected = std::clamp(127.5f + 127.5f * sum / 4.0f / 2.0f / 4.0f, 0.0f, 255.0f);
                EXPECT_NEAR(half.at(x, y), expected, 0.51f) << x << " " << y;
            }
        }
    }
}

TEST(DistanceField, ofNothingIsNothing) {
    const GrayImage field = makeDistanceField({32, 32, std::vector<uint8_t>(32 * 32)}, 16, 4);
    EXPECT_EQ(field.pixels, std::vector<uint8_t>(4, 0));
}

TEST(ShelfPacker, placesWithoutOverlapUntilThePageIsFull) {
    ShelfPacker packer(64, 64, 2);
    std::vector<irr::core::rect<int>> placed;
    std::mt19937 random(5);
    for (;;) {
        const int width = 4 + static_cast<int>(random() % 9);
        const int height = 12 - static_cast<int>(placed.size() / 3);
        const auto corner = packer.place(width, std::max(1, height));
        if (!corner)
            break;
        placed.emplace_back(corner->X - 1, corner->Y - 1, corner->X + width + 1, corner->Y + std::max(1, height) + 1);
        EXPECT_GE(corner->X, 2);
        EXPECT_LE(corner->X + width, 62);
        EXPECT_LE(corner->Y + height, 62);
    }
    EXPECT_GT(placed.size(), 15u);
    for (size_t one = 0; one < placed.size(); ++one)
        for (size_t other = one + 1; other < placed.size(); ++other)
            EXPECT_FALSE(placed[one].LowerRightCorner.X > placed[other].UpperLeftCorner.X &&
                         placed[other].LowerRightCorner.X > placed[one].UpperLeftCorner.X &&
                         placed[one].LowerRightCorner.Y > placed[other].UpperLeftCorner.Y &&
                         placed[other].LowerRightCorner.Y > placed[one].UpperLeftCorner.Y);
    EXPECT_FALSE(packer.place(100, 1));
}

TEST(CharacterList, readsRangesSinglesAndSubstitutes) {
    const CharacterList list = CharacterList::parse("41-43 # letters\n\nB0\n2126=3A9\nnonsense\n5-\n");
    EXPECT_EQ(list.characters, (std::vector<wchar_t>{0x41, 0x42, 0x43, 0xB0, 0x2126}));
    EXPECT_EQ(list.substitutes.at(0x2126), 0x3A9);
}

TEST(DrawnGlyphs, readsContoursAndPassesOverBrokenLines) {
    const auto glyphs =
        parseDrawnGlyphs("2192 800 0,0 10,20 30,-5 / 1,1 2,2 3,3 # arrow\n41 x\n42 5 0,0 1,1\n43 5 a,b\n");
    ASSERT_EQ(glyphs.size(), 1u);
    EXPECT_EQ(glyphs.at(0x2192).advance, 800);
    ASSERT_EQ(glyphs.at(0x2192).contours.size(), 2u);
    EXPECT_EQ(glyphs.at(0x2192).contours[0][2], DrawnGlyph::Point(30, -5));
}

TEST(PngWriter, rowsUnfilterToWhiteWithTheAlpha) {
    const GrayImage alpha{2, 2, {0, 255, 7, 3}};
    const std::string png = makeWhitePng(alpha);
    EXPECT_EQ(png.substr(0, 8), "\x89PNG\r\n\x1A\n");
    const size_t data = png.find("IDAT") + 4;
    Bytef rows[18];
    uLongf size = sizeof rows;
    ASSERT_EQ(uncompress(rows, &size, reinterpret_cast<const Bytef*>(png.data() + data), png.size() - data), Z_OK);
    ASSERT_EQ(size, 18u);
    for (int y = 0; y < 2; ++y) {
        for (int x = 0; x < 8; ++x) {
            const int above = y == 0 ? 0 : rows[1 + x];
            const int value = (rows[y * 9 + 1 + x] + above) & 0xFF;
            EXPECT_EQ(value, x % 4 == 3 ? alpha.at(x / 4, y) : 255);
        }
    }
}

TEST(AtlasBuilder, drawsAndKernsARealFont) {
    if (!std::ifstream(roboto).good())
        GTEST_SKIP() << "no " << roboto;
    std::ifstream drawn(sourceFolder() + "tools/fontatlas/drawn.txt");
    AtlasOptions options;
    options.pageWidth = 256;
    options.pageHeight = 256;
    FontFiles files({options.emPixels, options.oversampling, options.spread},
                    parseDrawnGlyphs(std::string(std::istreambuf_iterator<char>(drawn), {})));
    ASSERT_TRUE(files.add(roboto));
    const Atlas atlas = buildAtlas(options, files, CharacterList::parse("20\n41\n56\n49\n2192\n2215=2F\nE000\n"));
    EXPECT_FALSE(atlas.full);
    EXPECT_EQ(atlas.missing, std::vector<wchar_t>{0xE000});
    EXPECT_LT(atlas.font.findKerning(L'A', L'V'), 0);
    EXPECT_EQ(atlas.font.findCharacter(L' ')->width, 0);
    const FontCharacter& arrow = *atlas.font.findCharacter(L'\u2192');
    EXPECT_GT(arrow.width, arrow.height);
    // Across the upright stroke of an I: nothing at the rim, more than the edge's value in the middle.
    const FontCharacter& stroke = *atlas.font.findCharacter(L'I');
    const int y = stroke.y + stroke.height / 2;
    EXPECT_LT(atlas.page.at(stroke.x, y), 20);
    EXPECT_GT(atlas.page.at(stroke.x + stroke.width / 2, y), 160);
    // From above the capital's top to the base line.
    EXPECT_EQ(stroke.yoffset + stroke.height - options.spread, atlas.font.base);
}

} // namespace skyvane

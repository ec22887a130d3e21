#include "core/ini/IniFile.h"
#include "gui/font/CachedText.h"
#include "gui/font/FontFixture.h"
#include "gui/font/FontList.h"
#include "gui/font/MakeWordWrappedText.h"
#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>

namespace skyvane {

namespace {

using irr::core::rect;
using irr::scene::SMeshBuffer;
using irr::video::SColor;
using Rect = rect<irr::s32>;

const SColor white(0xffffffff);
const SColor black(0xff000000);

/// The smallest rectangle round the pixels that are brighter than half.
Rect inkOf(const GlDevice& gl, int width, int height) {
    Rect ink(width, height, 0, 0);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            if (gl.pixel(x, y).getLightness() > 127.0f)
                ink = Rect(std::min(ink.UpperLeftCorner.X, x), std::min(ink.UpperLeftCorner.Y, y),
                           std::max(ink.LowerRightCorner.X, x + 1), std::max(ink.LowerRightCorner.Y, y + 1));
    return ink;
}

bool isBlank(const Rect& ink) {
    return ink.getWidth() < 0;
}

class FlexibleFontTest : public testing::Test {
protected:
    static constexpr int width = 300;
    static constexpr int height = 120;

    FontFixture fixture{width, height};
    FlexibleFont* font = nullptr;

    void SetUp() override {
        if (!fixture.gl)
            GTEST_SKIP() << "no display";
        font = fixture.load("roboto-regular.fnt");
        ASSERT_TRUE(font);
    }

    template <class Draw>
    Rect draw(Draw&& drawing, SColor background = black) {
        fixture.gl.begin(background);
        drawing();
        fixture.gl.end();
        return inkOf(fixture.gl, width, height);
    }
};

} // namespace

TEST_F(FlexibleFontTest, meshesSpanWhatIsMeasured) {
    for (const wchar_t* text : {L"HHH", L"AVAVA", L"one\nlonger line\nx", L"a\tb", L"\u4e2d missing"}) {
        SMeshBuffer mesh;
        font->fillMeshBuffer(mesh, text, white);
        const auto size = font->getDimensionWithTabs(text, 4, {1.0f, 1.0f});
        const auto extent = mesh.BoundingBox.getExtent();
        EXPECT_NEAR(extent.X, size.Width, 12.0f); // side bearings, and the field round the ink
        EXPECT_LE(extent.Y, size.Height + 8.0f);
        EXPECT_EQ(mesh.Vertices.size() % 4, 0u);
        EXPECT_EQ(mesh.Indices.size(), mesh.Vertices.size() / 4 * 6);
    }
}

TEST_F(FlexibleFontTest, slantMatrixAndCenteringMoveTheVertices) {
    SMeshBuffer plain, slanted, moved, centered;
    irr::core::matrix4 matrix;
    matrix.setTranslation({100.0f, 50.0f, 0.0f});
    font->fillMeshBuffer(plain, L"H\nHHH", white);
    font->fillMeshBuffer(slanted, L"H\nHHH", 4, false, white, 0.25f, nullptr, irr::video::EMT_SOLID);
    font->fillMeshBuffer(moved, L"H\nHHH", 4, false, white, 0.0f, &matrix, irr::video::EMT_SOLID);
    font->fillMeshBuffer(centered, L"H\nHHH", white, true);
    const float glyphHeight = plain.Vertices[1].Pos.Y - plain.Vertices[0].Pos.Y;
    EXPECT_FLOAT_EQ(slanted.Vertices[0].Pos.X - plain.Vertices[0].Pos.X, 0.25f * glyphHeight);
    EXPECT_FLOAT_EQ(slanted.Vertices[1].Pos.X, plain.Vertices[1].Pos.X);
    EXPECT_FLOAT_EQ(moved.Vertices[3].Pos.X - plain.Vertices[3].Pos.X, 100.0f);
    EXPECT_FLOAT_EQ(moved.Vertices[3].Pos.Y - plain.Vertices[3].Pos.Y, 50.0f);
    const int advance = font->getFontDefintion().findCharacter(L'H')->xadvance;
    EXPECT_FLOAT_EQ(centered.Vertices[0].Pos.X - plain.Vertices[0].Pos.X, static_cast<float>(advance));
    EXPECT_FLOAT_EQ(centered.Vertices[4].Pos.X, plain.Vertices[4].Pos.X);
}

TEST_F(FlexibleFontTest, aMeshHoldsNoMoreThanItsIndicesReach) {
    SMeshBuffer mesh;
    font->fillMeshBuffer(mesh, std::wstring(20000, L'x').c_str(), white);
    EXPECT_EQ(mesh.Vertices.size(), 65536u);
    EXPECT_EQ(mesh.Indices.size(), 16384u * 6);
    EXPECT_EQ(mesh.Indices[mesh.Indices.size() - 1], 65535);
}

TEST_F(FlexibleFontTest, drawsWhereItIsTold) {
    const FontCharacter& glyph = *font->getFontDefintion().findCharacter(L'H');
    for (const float scale : {0.5f, 1.0f, 2.0f}) {
        font->setDefaultScale({scale, scale});
        const Rect ink = draw([&] { font->draw(L"H", Rect(20, 10, 290, 110), white); });
        const int spread = 4; // of the field round the ink
        EXPECT_NEAR(ink.UpperLeftCorner.X, 20 + scale * static_cast<float>(glyph.xoffset + spread), 1.0f + scale);
        EXPECT_NEAR(ink.UpperLeftCorner.Y, 10 + scale * static_cast<float>(glyph.yoffset + spread), 1.0f + scale);
        EXPECT_NEAR(ink.getWidth(), scale * static_cast<float>(glyph.width - 2 * spread), 1.0f + scale);
        EXPECT_NEAR(ink.getHeight(), scale * static_cast<float>(glyph.height - 2 * spread), 1.0f + scale);
    }
}

TEST_F(FlexibleFontTest, centresInBothAxes) {
    const Rect ink = draw([&] { font->draw(L"HH", Rect(0, 0, width, height), white, true, true); });
    EXPECT_NEAR(ink.getCenter().X, width / 2, 1);
    EXPECT_NEAR(ink.getCenter().Y, height / 2, 3);
}

TEST_F(FlexibleFontTest, neverDrawsBeyondRectangleClipOrTarget) {
    const Rect clip(60, 30, 90, 40);
    const Rect inClip = draw([&] { font->draw(L"HHHHHH", Rect(20, 10, 280, 110), white, false, false, &clip); });
    EXPECT_EQ(inClip.getWidth() > 0 && clip.isPointInside(inClip.UpperLeftCorner), true);
    EXPECT_LE(inClip.LowerRightCorner.X, 90);
    EXPECT_LE(inClip.LowerRightCorner.Y, 40);
    const Rect beyond = draw([&] { font->draw(L"HHHH", Rect(-20, -10, 60, 110), white); });
    const Rect inside = draw([&] { font->draw(L"HHHH", Rect(0, 0, 80, 120), white); });
    EXPECT_EQ(beyond.LowerRightCorner.X, 60); // cut at the rectangle, not squeezed
    EXPECT_EQ(beyond.LowerRightCorner.Y, inside.LowerRightCorner.Y - 10);
    EXPECT_TRUE(isBlank(draw([&] { font->draw(L"HHHH", Rect(20, 10, 280, 10), white); })));
    const Rect elsewhere(0, 100, 10, 110);
    EXPECT_TRUE(isBlank(draw([&] { font->draw(L"H", Rect(20, 10, 60, 60), white, false, false, &elsewhere); })));
}

TEST_F(FlexibleFontTest, aLabelThatIsTooWideIsDrawnSmallerBeforeItIsCut) {
    const int whole = static_cast<int>(font->getDimension(L"HHHH").Width);
    const Rect place(10, 10, 10 + whole * 3 / 4, 110);
    const Rect ink = draw([&] { font->draw(L"HHHH", place, white, true, true); });
    EXPECT_GT(ink.UpperLeftCorner.X, place.UpperLeftCorner.X);
    EXPECT_LT(ink.LowerRightCorner.X, place.LowerRightCorner.X);
    EXPECT_NEAR(ink.getCenter().Y, place.getCenter().Y, 3);
    const Rect narrow(10, 10, 10 + whole / 3, 110); // smaller letters than that can't be read
    EXPECT_GE(draw([&] { font->draw(L"HHHH", narrow, white, true, true); }).getWidth(), narrow.getWidth() - 1);
}

TEST_F(FlexibleFontTest, turnsCounterClockwiseAboutThePivot) {
    CachedText text;
    text.set(font, L"HHHH", white);
    const Rect flat = draw([&] { text.drawRotated(Rect(0, 0, width, height), {150, 60}, {0.5f, 0.5f}, 0); });
    const Rect upright = draw([&] { text.drawRotated(Rect(0, 0, width, height), {150, 60}, {0.5f, 0.5f}, 90); });
    EXPECT_NEAR(flat.getWidth(), upright.getHeight(), 1);
    EXPECT_NEAR(flat.getHeight(), upright.getWidth(), 1);
    text.set(font, L"H . . .", white); // the tall end is the lower one, once turned
    draw([&] { text.drawRotated(Rect(0, 0, width, height), {150, 60}, {0.5f, 0.5f}, 90); });
    fixture.gl.savePicture("font-turned.png");
    const Rect turned = inkOf(fixture.gl, width, height);
    int lowerInk = 0;
    int upperInk = 0;
    for (int y = turned.UpperLeftCorner.Y; y < turned.LowerRightCorner.Y; ++y)
        for (int x = 0; x < width; ++x)
            (y > turned.getCenter().Y ? lowerInk : upperInk) += fixture.gl.pixel(x, y).getLightness() > 127.0f;
    EXPECT_GT(lowerInk, 2 * upperInk);
}

TEST_F(FlexibleFontTest, outlineAndShadowColourTheEdge) {
    const auto countOf = [&](auto&& isColor) {
        int count = 0;
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                count += isColor(fixture.gl.pixel(x, y));
        return count;
    };
    const auto red = [](SColor c) { return c.getRed() > 150 && c.getGreen() < 80; };
    const auto green = [](SColor c) { return c.getGreen() > 150 && c.getRed() < 80; };
    const auto drawText = [&] { font->draw(L"HO", Rect(0, 0, width, height), white, true, true); };
    font->setDefaultScale({2.0f, 2.0f});
    font->setDefaultBorderColor(SColor(0xffff0000));
    draw(drawText);
    EXPECT_EQ(countOf(red), 0); // border size 0 draws none, whatever its colour
    font->setDefaultBorderSize(0.2f);
    draw(drawText);
    fixture.gl.savePicture("font-outline.png");
    EXPECT_GT(countOf(red), 100);
    font->setDefaultBorderSize(0.0f);
    font->setDefaultMaterialType(fixture.manager->getSDFFWithShadowsMaterialType());
    font->setDefaultShadow({{0.003f, 0.003f}, 0.1f, SColor(0xff00ff00)});
    draw(drawText);
    fixture.gl.savePicture("font-shadow.png");
    EXPECT_GT(countOf(green), 100);
    EXPECT_GT(countOf([](SColor c) { return c == white; }), 500);
}

TEST_F(FlexibleFontTest, blendsAfterTwoDimensionalDraws) {
    const SColor blue(0xff0000c0);
    draw(
        [&] {
            font->draw(L"HO", Rect(0, 0, width, height), white);
            fixture.gl.driver()->draw2DRectangle(SColor(0xff004000), Rect(200, 0, 210, 10));
            font->draw(L"HO", Rect(100, 0, width, height), white);
        },
        blue);
    EXPECT_EQ(fixture.gl.pixel(101, 1), blue); // inside the quad, outside of the glyph
    EXPECT_EQ(fixture.gl.pixel(1, 1), blue);
}

TEST_F(FlexibleFontTest, smallTextLeavesItsSurroundingsClear) {
    font->setDefaultScale({0.15f, 0.15f});
    fixture.gl.begin();
    font->draw(L"....", Rect(10, 10, 290, 110), white);
    fixture.gl.end();
    EXPECT_EQ(fixture.gl.pixel(12, 11), black);
}

TEST_F(FlexibleFontTest, anUnchangedTextIsNotBuiltAgain) {
    const auto frame = [&](SColor color) { draw([&] { font->draw(L"112 KT", Rect(0, 0, width, height), color); }); };
    frame(white);
    const unsigned long built = font->getDrawRebuilds();
    frame(white);
    frame(SColor(0xff00ff00)); // a colour recolours
    EXPECT_EQ(font->getDrawRebuilds(), built);
    EXPECT_EQ(inkOf(fixture.gl, width, height).getWidth() > 0, true);
    draw([&] { font->draw(L"113 KT", Rect(0, 0, width, height), white); });
    EXPECT_EQ(font->getDrawRebuilds(), built + 1);
    for (int text = 0; text < 500; ++text) // more than the cache holds
        draw([&] { font->draw(std::to_wstring(text).c_str(), Rect(0, 0, width, height), white); });
    frame(white);
    EXPECT_EQ(font->getDrawRebuilds(), built + 502);
}

TEST_F(FlexibleFontTest, cachedTextFollowsTextColourAndLook) {
    CachedText text;
    text.draw(Rect(0, 0, 10, 10), {1.0f, 1.0f}, false, false); // nothing set: nothing drawn
    text.set(font, L"FT", white);
    text.set(font, L"FT", SColor(0xffff0000));
    EXPECT_EQ(text.getRebuilds(), 1u);
    draw([&] { text.draw(Rect(0, 0, width, height), {1.0f, 1.0f}, false, false); });
    EXPECT_TRUE(isBlank(inkOf(fixture.gl, width, height)) || fixture.gl.pixel(8, 20).getGreen() == 0); // red, not white
    text.set(font, L"FL", white);
    font->setDefaultItalicGradient(0.2f);
    text.set(font, L"FL", white);
    EXPECT_EQ(text.getRebuilds(), 3u);
    EXPECT_EQ(font->getDefaultScale().X, 1.0f);
}

TEST_F(FlexibleFontTest, gathersOfOthersAreDrawnFirst) {
    int flushed = 0;
    fixture.manager->setBeforeDraw([&] { ++flushed; });
    draw([&] { font->draw(L"H", Rect(0, 0, width, height), white); });
    EXPECT_EQ(flushed, 1);
}

TEST_F(FlexibleFontTest, leavesViewportAndTransformsAsTheyWere) {
    const Rect before(10, 10, 200, 100);
    fixture.gl.begin();
    fixture.gl.driver()->setViewPort(before);
    font->draw(L"H", Rect(0, 0, width, height), white);
    EXPECT_EQ(fixture.gl.driver()->getViewPort(), before);
    EXPECT_TRUE(fixture.gl.driver()->getTransform(irr::video::ETS_WORLD).isIdentity());
    font->setAutoResetTransformEnabled(false);
    font->draw(L"H", Rect(0, 0, width, height), white);
    EXPECT_FALSE(fixture.gl.driver()->getTransform(irr::video::ETS_VIEW).isIdentity());
    font->reset2DTransforms();
    EXPECT_TRUE(fixture.gl.driver()->getTransform(irr::video::ETS_PROJECTION).isIdentity());
    fixture.gl.driver()->setViewPort(Rect(0, 0, width, height));
    fixture.gl.end();
}

TEST_F(FlexibleFontTest, keepsItsCoverageInTheAlphaOfATarget) {
    irr::video::IVideoDriver* driver = fixture.gl.driver();
    irr::video::ITexture* target = driver->addRenderTargetTexture({128, 64}, "font-target", irr::video::ECF_A8R8G8B8);
    ASSERT_TRUE(target);
    fixture.gl.begin(SColor(0xff000000));
    driver->setRenderTarget(target, true, true, SColor(0));
    font->draw(L"HHHH", Rect(0, 0, 128, 64), white);
    driver->setRenderTarget(nullptr, false, false);
    const irr::u32* pixels = static_cast<const irr::u32*>(target->lock(irr::video::ETLM_READ_ONLY));
    ASSERT_TRUE(pixels);
    int opaque = 0;
    int mixed = 0;
    for (int i = 0; i < 128 * 64; ++i) {
        opaque += pixels[i] >> 24 == 255;
        // White text on nothing, stored as it was blended: each colour is the coverage squared or less, the alpha is
        // it.
        mixed += (pixels[i] >> 24) + 1 < (pixels[i] & 0xff);
    }
    target->unlock();
    fixture.gl.end();
    EXPECT_GT(opaque, 300);
    EXPECT_EQ(mixed, 0);
}

TEST_F(FlexibleFontTest, measuresAtTheDefaultScale) {
    font->setDefaultScale({2.0f, 0.5f});
    const auto one = font->getDimensionWithTabs(L"AV To", 4, {1.0f, 1.0f});
    EXPECT_EQ(font->getDimension(L"AV To").Width, 2 * one.Width);
    EXPECT_EQ(font->getKerningWidth(L"V", L"A"), 2 * font->getFontDefintion().findKerning(L'A', L'V'));
    EXPECT_EQ(font->getKerningWidth(), 0);
    EXPECT_EQ(font->getDimension(nullptr).Width, 0u);
    EXPECT_EQ(font->getCharacterFromPos(L"HHH", 3), 0);
    EXPECT_FLOAT_EQ(font->calculateOptimalScale(L"AV To", {2 * (one.Width + 1), 10000}), 2.0f);
    const std::wstring wrapped = makeWordWrappedText(L"several words", font->getDimension(L"several w").Width, font);
    EXPECT_EQ(wrapped, L"several\nwords");
}

TEST_F(FlexibleFontTest, listTellsFileAndFatness) {
    const IniFile list(sourceFolder() + "media/sdff/fonts.ini");
    for (const char* name : {"Ubuntu (Regular)", "Roboto"}) {
        const ListedFont listed = findListedFont(list, name);
        FlexibleFont* found =
            loadListedFont(fixture.manager.get(), sourceFolder() + "media/sdff/" + listed.file, listed);
        ASSERT_TRUE(found) << name;
        EXPECT_EQ(found->getDefaultMaterialType(), fixture.manager->getSDFFMaterialType());
        EXPECT_FLOAT_EQ(found->getDefaultFatness(), listed.fatness);
    }
    const ListedFont unknown = findListedFont(list, "Nobody's");
    EXPECT_EQ(loadListedFont(fixture.manager.get(), sourceFolder() + "media/sdff/", unknown), nullptr);
}

TEST_F(FlexibleFontTest, managerKeepsAndForgetsFonts) {
    EXPECT_EQ(fixture.load("roboto-regular.fnt"), font);
    fixture.manager->removeFont(font);
    font = fixture.load("roboto-regular.fnt");
    EXPECT_TRUE(font);
    EXPECT_EQ(fixture.load("absent.fnt"), nullptr);
    EXPECT_EQ(fixture.load("roboto-regular.png"), nullptr);
    EXPECT_EQ(fixture.load(""), nullptr);
}

TEST_F(FlexibleFontTest, brokenFontsAreRefused) {
    const std::string folder = testing::TempDir();
    const auto write = [&](const char* name, const std::string& text) {
        std::ofstream(folder + name) << text;
        return fixture.manager->getFont(folder + name);
    };
    EXPECT_EQ(write("skyvane-empty.fnt", ""), nullptr);
    EXPECT_EQ(write("skyvane-nopage.fnt", "common lineHeight=9\nchar id=32 xadvance=3\n"), nullptr);
    EXPECT_EQ(write("skyvane-nopicture.fnt", "common lineHeight=9\npage id=0 file=\"skyvane-absent.png\"\n"
                                             "char id=32 xadvance=3\n"),
              nullptr);
}

} // namespace skyvane

#include "displays/drawing/Drawer2D.h"

#include "core/engine/EngineRef.h"
#include "core/time/Time.h"
#include "displays/materials/MaterialManager.h"
#include "support/AllocationCounter.h"
#include "support/GlDevice.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace skyvane;
using irr::core::rect;
using irr::video::SColor;

namespace {

const SColor black(0xff000000), white(0xffffffff), red(0xffff0000), green(0xff00ff00), blue(0xff0000ff),
    yellow(0xffffff00);

class Drawer2DTest : public testing::Test {
protected:
    static constexpr int width = 200, height = 160;

    void SetUp() override {
        if (!gl)
            GTEST_SKIP() << "no display";
        materials = std::make_unique<MaterialManager>(gl.device());
        drawer = std::make_unique<Drawer2D>(gl.device());
        drawer->setMaterialType(materials->getMaterialType("Alpha"));
        quarters = makeTexture("quarters", 64, [](unsigned x, unsigned y) {
            return y < 32 ? (x < 32 ? red : green) : (x < 32 ? blue : yellow);
        });
        plain = makeTexture("plain", 1, [](unsigned, unsigned) { return white; });
    }

    template <class ColorAt>
    irr::video::ITexture* makeTexture(const char* name, unsigned edge, ColorAt colorAt) {
        auto image = EngineRef<irr::video::IImage>::adopt(
            gl.driver()->createImage(irr::video::ECF_A8R8G8B8, irr::core::dimension2d<irr::u32>(edge, edge)));
        for (unsigned y = 0; y < edge; ++y)
            for (unsigned x = 0; x < edge; ++x)
                image->setPixel(x, y, colorAt(x, y));
        return gl.driver()->addTexture(name, image.get());
    }

    template <class Draw>
    void frame(Draw draw) {
        gl.begin();
        draw();
        drawer->flush();
        gl.end();
    }

    int countPixels(const rect<int>& area, SColor color) const {
        int count = 0;
        for (int y = area.UpperLeftCorner.Y; y < area.LowerRightCorner.Y; ++y)
            for (int x = area.UpperLeftCorner.X; x < area.LowerRightCorner.X; ++x)
                count += gl.pixel(x, y) == color;
        return count;
    }
    int countPixels(SColor color) const { return countPixels(rect<int>(0, 0, width, height), color); }

    /// Pixels of green light, part-covered ones in part.
    double coverage(const rect<int>& area) const {
        double sum = 0.0;
        for (int y = area.UpperLeftCorner.Y; y < area.LowerRightCorner.Y; ++y)
            for (int x = area.UpperLeftCorner.X; x < area.LowerRightCorner.X; ++x)
                sum += gl.pixel(x, y).getGreen() / 255.0;
        return sum;
    }

    /// The four quarters of a 40 x 40 picture at (20, 20), named by their colours.
    std::string pictureAt20() const {
        std::string names;
        for (auto place : {std::pair<int, int>(30, 30), {50, 30}, {30, 50}, {50, 50}}) {
            const SColor color = gl.pixel(place.first, place.second);
            names += color == red ? 'r' : color == green ? 'g' : color == blue ? 'b' : color == yellow ? 'y' : '?';
        }
        return names;
    }

    GlDevice gl{width, height};
    std::unique_ptr<MaterialManager> materials;
    std::unique_ptr<Drawer2D> drawer;
    irr::video::ITexture* quarters = nullptr; ///< Upper left red, upper right green, lower left blue, the last yellow.
    irr::video::ITexture* plain = nullptr;
};

TEST_F(Drawer2DTest, coversExactlyThePixelsOfAQuad) {
    frame([&] { drawer->drawFilledRect(rect<int>(10, 20, 33, 41), green); });
    EXPECT_EQ(countPixels(green), 23 * 21);
    EXPECT_EQ(countPixels(rect<int>(10, 20, 33, 41), green), 23 * 21);

    frame([&] { drawer->drawOutline(rect<int>(10, 20, 33, 41), green, 2); });
    EXPECT_EQ(countPixels(rect<int>(10, 20, 33, 41), green), 23 * 21 - 19 * 17);
    EXPECT_EQ(gl.pixel(12, 22), black);
}

TEST_F(Drawer2DTest, turnsCounterClockwiseAboutThePivot) {
    const auto draw = [&](float degrees) {
        frame([&] { drawer->Draw(quarters, {40, 40}, {40, 40}, degrees, {0.5f, 0.5f}); });
        return pictureAt20();
    };
    EXPECT_EQ(draw(0), "rgby");
    EXPECT_EQ(draw(90), "gyrb") << "what was right is up now";
    EXPECT_EQ(draw(180), "ybgr");
    EXPECT_EQ(draw(-90), "bryg");

    frame([&] { drawer->Draw(quarters, {20, 60}, {40, 40}, 90, {0.0f, 0.0f}); });
    EXPECT_EQ(pictureAt20(), "gyrb") << "the upper left corner stays at the position";
    frame([&] { drawer->Draw(quarters, {20, 20}, {0, 40}, 0, {0, 0}); });
    EXPECT_EQ(pictureAt20(), "????");
}

TEST_F(Drawer2DTest, mirrorsClipsAndCutsTheTexture) {
    const auto mirrored = [&](bool horizontal, bool vertical) {
        frame([&] {
            drawer->setMirroring(horizontal, vertical);
            drawer->Draw(quarters, rect<int>(20, 20, 60, 60));
            drawer->setMirroring(false, false);
        });
        return pictureAt20();
    };
    EXPECT_EQ(mirrored(true, false), "gryb");
    EXPECT_EQ(mirrored(false, true), "byrg");

    const rect<int> clip(35, 0, 60, 45);
    frame([&] { drawer->Draw(quarters, rect<int>(20, 20, 60, 60), &clip); });
    EXPECT_EQ(gl.pixel(34, 30), black);
    EXPECT_EQ(gl.pixel(36, 30), red);
    EXPECT_EQ(gl.pixel(50, 30), green);
    EXPECT_EQ(gl.pixel(50, 44), yellow);
    EXPECT_EQ(gl.pixel(50, 45), black);

    const irr::core::vector2df onlyGreen[4] = {{0.6f, 0.1f}, {0.9f, 0.1f}, {0.6f, 0.4f}, {0.9f, 0.4f}};
    frame([&] {
        drawer->setTextureCoordinates(onlyGreen);
        drawer->Draw(quarters, rect<int>(20, 20, 60, 60));
        drawer->setTextureCoordinates(nullptr);
    });
    EXPECT_EQ(pictureAt20(), "gggg");
}

TEST_F(Drawer2DTest, tintsAndBlends) {
    frame([&] {
        drawer->drawFilledRect(rect<int>(0, 0, 100, 100), blue);
        drawer->setColor(SColor(0x80ffffff));
        drawer->Draw(quarters, rect<int>(20, 20, 60, 60));
        drawer->setColor(white);
    });
    EXPECT_NEAR(static_cast<int>(gl.pixel(30, 30).getRed()), 128, 1);
    EXPECT_NEAR(static_cast<int>(gl.pixel(30, 30).getBlue()), 127, 1);

    const SColor fromRedToBlue[4] = {red, red, blue, blue};
    frame([&] {
        drawer->setColors(fromRedToBlue);
        drawer->Draw(plain, rect<int>(20, 20, 60, 60));
        drawer->setColor(white);
    });
    for (int y : {20, 30, 40, 59}) {
        const double share = (y - 20 + 0.5) / 40.0;
        EXPECT_NEAR(static_cast<int>(gl.pixel(30, y).getRed()), 255 * (1 - share), 2) << y;
        EXPECT_NEAR(static_cast<int>(gl.pixel(30, y).getBlue()), 255 * share, 2) << y;
    }
}

TEST_F(Drawer2DTest, drawsLinesOfWholePixels) {
    frame([&] {
        drawer->DrawLine(plain, {10, 10}, {50, 10}, 1);
        drawer->DrawLine(plain, {10, 30}, {50, 30}, 4);
        drawer->DrawLine(plain, {10, 50}, {10, 90}, 4, 0.0f); // downwards: the width lies to the left of the screen
        drawer->DrawLine(plain, {70, 70}, {70, 70}, 4);
    });
    EXPECT_EQ(countPixels(rect<int>(10, 9, 51, 12), white), 40);
    EXPECT_EQ(countPixels(rect<int>(10, 28, 50, 32), white), 160);
    EXPECT_EQ(countPixels(rect<int>(6, 50, 10, 90), white), 160);
    EXPECT_EQ(countPixels(white), 360);
}

TEST_F(Drawer2DTest, drawsArcsOnTheirRadius) {
    frame([&] {
        drawer->DrawArc(plain, {100, 80}, 60, 90, 0, 5, 10); // put in order: the upper right quarter
        drawer->DrawArc(plain, {100, 80}, 30, 180, 270, 5, 10, 1.0f);
        drawer->DrawArc(plain, {100, 80}, 20, 180, 180, 5, 10);
    });
    gl.savePicture("arcs.png");
    const auto lit = [&](float degrees, float radius) {
        const float angle = (degrees + 90.0f) * 3.14159265f / 180.0f;
        return gl.pixel(static_cast<int>(100 - std::cos(angle) * radius),
                        static_cast<int>(80 - std::sin(angle) * radius)) == white;
    };
    for (float degrees : {5.0f, 45.0f, 85.0f}) {
        EXPECT_TRUE(lit(degrees, 58) && lit(degrees, 52)) << degrees;
        EXPECT_FALSE(lit(degrees, 48) || lit(degrees, 62)) << degrees;
        EXPECT_TRUE(lit(degrees + 180, 38) && lit(degrees + 180, 32)) << degrees;
        EXPECT_FALSE(lit(degrees + 180, 28) || lit(degrees + 180, 42)) << degrees;
    }
    const double quarterRing = 3.14159 / 4 * (60 * 60 - 50 * 50);
    EXPECT_NEAR(coverage(rect<int>(100, 0, width, 80)), quarterRing, 0.01 * quarterRing);
}

TEST_F(Drawer2DTest, fillsConcavePolygons) {
    const std::vector<Drawer2D::Position> hook = {{20, 20}, {100, 20}, {100, 40}, {40, 40}, {40, 100}, {20, 100}};
    frame([&] {
        drawer->setColor(yellow);
        drawer->DrawFilledPolygon(hook);
        drawer->setColor(white);
        drawer->DrawFilledPolygon({{150, 100}, {152, 102}});
    });
    EXPECT_EQ(countPixels(yellow), 80 * 20 + 20 * 60);
    EXPECT_EQ(gl.pixel(60, 60), black);
    EXPECT_EQ(countPixels(white), 0);
}

TEST_F(Drawer2DTest, roundsCornersSoftly) {
    irr::scene::SMeshBuffer mesh;
    drawer->fillRectWithCornerMeshBuffer(&mesh, rect<int>(0, 0, 80, 50), 12, green);
    frame([&] {
        drawer->drawRectWithCorner(rect<int>(10, 10, 90, 60), 12, green);
        drawer->draw2DMeshBuffer(&mesh, {110.0f, 10.0f});
    });
    gl.savePicture("rounded.png");
    EXPECT_EQ(gl.pixel(10, 10), black);
    EXPECT_EQ(gl.pixel(13, 35), green);
    EXPECT_EQ(gl.pixel(50, 11), green);
    for (int y = 0; y < 70; ++y)
        for (int x = 0; x < 100; ++x)
            ASSERT_NEAR(static_cast<int>(gl.pixel(x, y).getGreen()), static_cast<int>(gl.pixel(x + 100, y).getGreen()),
                        1)
                << x << " " << y;
    const double area = 80 * 50 - (4 - 3.14159) * 12 * 12;
    EXPECT_NEAR(coverage(rect<int>(0, 0, 100, 70)), area, 0.01 * area);
}

TEST_F(Drawer2DTest, turnsAndScalesMeshes) {
    irr::scene::SMeshBuffer mesh;
    drawer->fillPolygonMeshBuffer(&mesh, {{0, 0}, {20, 0}, {20, 10}, {0, 10}}, white);
    frame([&] { drawer->draw2DMeshBuffer(&mesh, {50.0f, 60.0f}, 90.0f, {2.0f, 1.0f}); });
    EXPECT_EQ(countPixels(rect<int>(50, 20, 60, 60), white), 400) << "upwards from the translation";
    EXPECT_EQ(countPixels(white), 400);
}

TEST_F(Drawer2DTest, positionsAreLocalToTheViewPort) {
    frame([&] {
        drawer->setViewPort(rect<int>(50, 40, 150, 140));
        drawer->drawFilledRect(rect<int>(-10, -10, 10, 10), green);
        drawer->setViewPort(rect<int>(-30, 100, 70, 200)); // over the left and lower edges
        drawer->drawFilledRect(rect<int>(30, 0, 40, 10), red);
        drawer->setViewPort(rect<int>(500, 0, 600, 100)); // out of sight
        drawer->drawFilledRect(rect<int>(0, 0, 100, 100), blue);
        drawer->resetViewPort();
        drawer->drawFilledRect(rect<int>(190, 0, 200, 10), yellow);
    });
    EXPECT_EQ(countPixels(rect<int>(50, 40, 60, 50), green), 100);
    EXPECT_EQ(countPixels(green), 100);
    EXPECT_EQ(countPixels(rect<int>(0, 100, 10, 110), red), 100);
    EXPECT_EQ(countPixels(red), 100);
    EXPECT_EQ(countPixels(blue), 0);
    EXPECT_EQ(countPixels(rect<int>(190, 0, 200, 10), yellow), 100);
}

TEST_F(Drawer2DTest, targetsAreUprightAndKeepTheirAlpha) {
    auto* target = gl.driver()->addRenderTargetTexture(irr::core::dimension2d<irr::u32>(64, 64), "target",
                                                       irr::video::ECF_A8R8G8B8);
    ASSERT_TRUE(target);
    frame([&] {
        drawer->resetViewPort();
        gl.driver()->setRenderTarget(target, true, false, SColor(0));
        drawer->setViewPort(rect<int>(0, 0, 64, 64));
        drawer->Draw(quarters, rect<int>(0, 0, 64, 64));
        drawer->drawFilledRect(rect<int>(0, 0, 64, 8), SColor(0x80ffffff));
        drawer->flush();
        gl.driver()->setRenderTarget(irr::video::ERT_FRAME_BUFFER, false, false);
        drawer->resetViewPort();
        drawer->Draw(target, rect<int>(20, 20, 60, 60));
    });
    EXPECT_EQ(pictureAt20(), "rgby");
    // Half of white over opaque red: the black background must not shine through.
    EXPECT_NEAR(static_cast<int>(gl.pixel(30, 21).getGreen()), 128, 2);
    EXPECT_EQ(gl.pixel(30, 21).getRed(), 255u);
}

TEST_F(Drawer2DTest, drawsMoreThanABatchHolds) {
    frame([&] {
        for (int i = 0; i < 20000; ++i)
            drawer->Draw(plain, rect<int>(i % 200, i / 200, i % 200 + 1, i / 200 + 1));
    });
    EXPECT_EQ(countPixels(rect<int>(0, 0, 200, 100), white), 20000);
    EXPECT_EQ(countPixels(white), 20000);
}

TEST_F(Drawer2DTest, blendsOnAfterTheEngineHasDrawn) {
    for (int i = 0; i < 2; ++i) {
        frame([&] {
            gl.driver()->draw2DRectangle(blue, rect<int>(0, 0, 100, 100));
            drawer->drawFilledRect(rect<int>(10, 10, 20, 20), SColor(0x80ff0000));
            drawer->flush();
            gl.driver()->draw2DRectangle(green, rect<int>(100, 0, 200, 100));
            drawer->drawFilledRect(rect<int>(110, 10, 120, 20), SColor(0x80ff0000));
        });
        EXPECT_NEAR(static_cast<int>(gl.pixel(15, 15).getBlue()), 127, 1);
        EXPECT_NEAR(static_cast<int>(gl.pixel(115, 15).getGreen()), 127, 1);
    }
}

TEST_F(Drawer2DTest, allocatesNothingInTheSteadyState) {
    const std::vector<Drawer2D::Position> star = {{20, 20}, {50, 30}, {80, 20}, {70, 50}, {80, 80}, {50, 70}, {20, 80}};
    const auto draw = [&] {
        drawer->setViewPort(rect<int>(0, 0, 100, 100));
        for (int i = 0; i < 300; ++i)
            drawer->Draw(i % 2 ? quarters : plain, {40, 40}, {40, 40}, static_cast<float>(i), {0.5f, 0.5f});
        drawer->DrawArc(plain, {50, 50}, 40, 0, 300, 2, 10);
        drawer->DrawFilledPolygon(star);
        drawer->drawRectWithCorner(rect<int>(10, 10, 60, 60), 8, green);
        drawer->resetViewPort();
    };
    frame(draw);
    gl.begin();
    const AllocationCounter counter;
    draw();
    drawer->flush();
    EXPECT_EQ(counter.count(), 0u);
    gl.end();
}

TEST(Blink, hasAPeriodOf900Milliseconds) {
    // (milliseconds / 5) mod 360 degrees: 1800 ms a turn, of which the absolute sine makes two.
    ManualClock clock;
    setClock(&clock);
    EXPECT_FLOAT_EQ(blink(), 0.0f);
    clock.advance(0.4501);
    EXPECT_NEAR(blink(), 1.0f, 1e-3);
    clock.advance(0.45);
    EXPECT_NEAR(blink(), 0.0f, 0.01);
    clock.advance(0.45);
    EXPECT_NEAR(blink(), 1.0f, 1e-3);
    setClock(nullptr);
}

} // namespace

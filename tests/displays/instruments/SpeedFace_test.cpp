#include "displays/drawing/Drawer2D.h"
#include "displays/instruments/SpeedFace.h"
#include "support/GlDevice.h"

#include <cmath>
#include <gtest/gtest.h>

namespace skyvane {
namespace {

using irr::video::SColor;

constexpr int size = 200;

PanelTexture makePlain(irr::video::IVideoDriver* driver, const char* name, SColor color) {
    const auto image = EngineRef<irr::video::IImage>::adopt(
        driver->createImage(irr::video::ECF_A8R8G8B8, irr::core::dimension2d<irr::u32>(8, 8)));
    image->fill(color);
    return PanelTexture(driver, driver->addTexture(name, image.get()));
}

TEST(SpeedFace, arcsLieAtTheirSpeeds) {
    GlDevice gl(size, size);
    if (!gl)
        GTEST_SKIP() << "no display";
    const PanelTexture black = makePlain(gl.driver(), "black", SColor(0xff000000));
    const PanelTexture white = makePlain(gl.driver(), "white", SColor(0xffffffff));
    const PanelTexture clear = makePlain(gl.driver(), "clear", SColor(0x00ffffff)); // ticks out of sight
    const SpeedScale scale;
    Drawer2D drawer(gl.device());
    SpeedFace face(&drawer);
    gl.begin(SColor(0xff204060));
    face.prepare(size, false, scale, {&black, &clear, &white}, nullptr);
    irr::video::ITexture* const first = face.get();
    drawer.Draw(first, irr::core::rect<int>(0, 0, size, size));
    drawer.flush();
    gl.end();

    const auto colorAt = [&](double speed, double radius) {
        const double angle = scale.angleOf(speed) / 57.29577951308232;
        return gl.pixel(static_cast<int>(size / 2 + radius * size / 2 * std::sin(angle)),
                        static_cast<int>(size / 2 - radius * size / 2 * std::cos(angle)));
    };
    const SColor dark(0xff000000), plain(0xffffffff), green(0xff007d32), yellow(0xffffe11f);
    EXPECT_EQ(colorAt(45, 0.89), dark);
    EXPECT_EQ(colorAt(80, 0.78), plain);
    EXPECT_EQ(colorAt(80, 0.89), green);
    EXPECT_EQ(colorAt(57, 0.89), plain); // the flap range begins below the normal range
    EXPECT_EQ(colorAt(120, 0.78), dark);
    EXPECT_EQ(colorAt(120, 0.89), green);
    EXPECT_EQ(colorAt(170, 0.89), yellow);
    EXPECT_EQ(colorAt(120, 0.5), dark);

    face.prepare(size, false, scale, {&black, &clear, &white}, nullptr);
    EXPECT_EQ(face.get(), first); // built once
}

} // namespace
} // namespace skyvane

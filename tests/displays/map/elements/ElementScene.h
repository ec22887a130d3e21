#pragma once

#include "core/Context.h"
#include "core/ini/IniFile.h"
#include "displays/PanelManager.h"
#include "displays/drawing/Drawer2D.h"
#include "support/GlDevice.h"
#include "support/StartAnswers.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <stdlib.h>

namespace skyvane {

/// A real context with its own home and the built pictures, for tests that draw chart elements.
class ElementScene : public testing::Test {
protected:
    static constexpr int width = 800, height = 600;

    void SetUp() override {
        if (!gl)
            GTEST_SKIP() << "no display";
        char folder[] = "/tmp/skyvane_elements_XXXXXX";
        ASSERT_TRUE(mkdtemp(folder));
        home = folder;
        answerStartQuestions(folder);
        std::filesystem::create_directory_symlink(builtMedia(), home + "/media");
        prepareHome();
        context = std::make_unique<Context>(gl.device(), (home + "/skyvane").c_str(), false);
    }
    void TearDown() override {
        context.reset();
        std::error_code ignored;
        std::filesystem::remove_all(home, ignored);
    }
    virtual void prepareHome() {}

    static std::string builtMedia() {
        return std::filesystem::read_symlink("/proc/self/exe").parent_path().parent_path().string() + "/media";
    }

    template <class Draw>
    void frame(Draw draw) {
        gl.begin(irr::video::SColor(0xff808080));
        draw();
        context->getDrawer()->flush();
        gl.end();
    }

    /// How many pixels of a rectangle are of about that colour.
    int count(const irr::core::rect<int>& area, uint32_t argb, int tolerance = 24) const {
        const irr::video::SColor wanted(argb);
        int found = 0;
        for (int y = area.UpperLeftCorner.Y; y < area.LowerRightCorner.Y; ++y)
            for (int x = area.UpperLeftCorner.X; x < area.LowerRightCorner.X; ++x) {
                const irr::video::SColor there = gl.pixel(x, y);
                const auto isNear = [tolerance](irr::u32 a, irr::u32 b) {
                    return std::abs(static_cast<int>(a) - static_cast<int>(b)) <= tolerance;
                };
                found += isNear(there.getRed(), wanted.getRed()) && isNear(there.getGreen(), wanted.getGreen()) &&
                         isNear(there.getBlue(), wanted.getBlue());
            }
        return found;
    }

    GlDevice gl{width, height};
    std::string home;
    std::unique_ptr<Context> context;
};

} // namespace skyvane

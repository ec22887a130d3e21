#include "core/engine/EngineRef.h"
#include "core/engine/LoadingProgressCallback.h"
#include "core/engine/MissingFileScreen.h"
#include "core/engine/Screenshot.h"
#include "core/engine/ShowState.h"
#include "core/engine/TouchInput.h"
#include "core/engine/XTouchConnection.h"
#include "support/GlDevice.h"

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>

namespace skyvane {
namespace {

namespace fs = std::filesystem;
using irr::core::rect;
using irr::video::SColor;

class EngineWindowTest : public ::testing::Test {
protected:
    void SetUp() override {
        if (!gl)
            GTEST_SKIP() << "no display";
        char name[] = "/tmp/skyvane_window_XXXXXX";
        folder = std::string(mkdtemp(name)) + "/";
    }
    void TearDown() override {
        if (!folder.empty())
            fs::remove_all(folder);
    }

    static constexpr int width = 200, height = 160;
    GlDevice gl{width, height};
    std::string folder;
};

/// What the back buffer holds after a frame: the software renderer leaves it as it was shown.
int brightPixels(const GlDevice& gl, const rect<int>& area) {
    int count = 0;
    for (int y = area.UpperLeftCorner.Y; y < area.LowerRightCorner.Y; ++y)
        for (int x = area.UpperLeftCorner.X; x < area.LowerRightCorner.X; ++x)
            count += gl.pixel(x, y).getLuminance() > 128.0f;
    return count;
}

} // namespace

TEST_F(EngineWindowTest, AScreenshotIsTheFrameUprightWithItsColours) {
    irr::video::IVideoDriver* driver = gl.driver();
    driver->beginScene(true, true, SColor(255, 10, 20, 30));
    driver->draw2DRectangle(SColor(255, 200, 100, 50), rect<int>(0, 0, 40, 20));
    ASSERT_TRUE(saveScreenshot(folder, gl.device()->getFileSystem(), driver));
    driver->endScene();

    ASSERT_EQ(1, std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
    const std::string file = fs::directory_iterator(folder)->path();
    const auto image = EngineRef<irr::video::IImage>::adopt(driver->createImageFromFile(file.c_str()));
    ASSERT_TRUE(image);
    ASSERT_EQ(irr::core::dimension2d<irr::u32>(width, height), image->getDimension());
    EXPECT_EQ(SColor(255, 200, 100, 50), image->getPixel(1, 1));
    EXPECT_EQ(SColor(255, 200, 100, 50), image->getPixel(39, 19));
    EXPECT_EQ(SColor(255, 10, 20, 30), image->getPixel(40, 20));
    EXPECT_EQ(SColor(255, 10, 20, 30), image->getPixel(1, height - 2));
}

TEST_F(EngineWindowTest, AScreenshotWithoutItsFolderFailsWithoutAFile) {
    EXPECT_FALSE(saveScreenshot(folder + "missing/", gl.device()->getFileSystem(), gl.driver()));
    EXPECT_TRUE(fs::is_empty(folder));
}

TEST_F(EngineWindowTest, AStateStandsInTheMiddleOfABlackScreen) {
    showState(gl.device(), L"MMMM");
    gl.grab();
    const rect<int> middle(width / 2 - 40, height / 2 - 15, width / 2 + 40, height / 2 + 15);
    EXPECT_GT(brightPixels(gl, middle), 20);
    EXPECT_EQ(brightPixels(gl, middle), brightPixels(gl, rect<int>(0, 0, width, height)));
}

TEST_F(EngineWindowTest, TheLoadingBarGrowsToItsEndAndNoFurther) {
    LoadingProgressCallback progress(gl.device(), nullptr, 0.25f);
    int lengths[6];
    for (int& length : lengths) {
        progress.nextStep();
        gl.grab();
        length = brightPixels(gl, rect<int>(0, height * 9 / 10, width, height * 9 / 10 + 1));
    }
    for (int i = 0; i < 4; ++i)
        EXPECT_NEAR((i + 1) * width / 8, lengths[i], 1);
    EXPECT_EQ(lengths[3], lengths[4]);
    EXPECT_FLOAT_EQ(1.0f, progress.getProgress());
}

TEST_F(EngineWindowTest, ASecondListenerToTouchesIsRefusedWithAWordAndWithoutEndingTheProgram) {
    const unsigned long window = gl.driver()->getExposedVideoData().OpenGLLinux.X11Window;
    std::string trouble;
    const auto first = XTouchConnection::open(window, trouble);
    if (!first)
        GTEST_SKIP() << trouble;
    EXPECT_EQ(nullptr, XTouchConnection::open(window, trouble));
    EXPECT_NE("", trouble);
    RawTouch touch{};
    EXPECT_FALSE(first->poll(touch));
    TouchInput silent(gl.device());
    silent.pump();
}

TEST_F(EngineWindowTest, NoSuchWindowIsAnAnswerToo) {
    std::string trouble;
    EXPECT_EQ(nullptr, XTouchConnection::open(0x7fffff, trouble));
    EXPECT_NE("", trouble);
}

} // namespace skyvane

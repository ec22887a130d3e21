#include "chart/ExtendedChart.h"

#include "chart/elements/MarkElement.h"
#include "chart/store/ChartSetWriter.h"
#include "core/Context.h"
#include "core/FrameLoop.h"
#include "core/files/Paths.h"
#include "core/ini/IniFile.h"
#include "gui/windows/DialogFixture.h"
#include "sensors/TemporaryFolder.h"
#include "support/GlDevice.h"
#include "support/SourceFolder.h"
#include "support/StartAnswers.h"
#include "terrain/TerrainManager.h"
#include "terrain/files/BackgroundList.h"

#include <gtest/gtest.h>
#include <stdlib.h>

using namespace skyvane;

namespace {

class ExtendedChartTest : public testing::Test {
protected:
    void SetUp() override {
        if (!gl)
            GTEST_SKIP() << "no display";
        answerStartQuestions(folder.path());
        std::filesystem::create_directory_symlink(sourceFolder() + "media", folder.path("media"));
        context = std::make_unique<Context>(gl.device(), folder.path("skyvane").c_str(), false);
    }
    std::unique_ptr<ExtendedChart> open(int pictures = 80, bool checkDirty = true) {
        return std::make_unique<ExtendedChart>(context.get(), checkDirty, nullptr, 100, pictures);
    }
    bool hasCommonList() { return std::filesystem::exists(context->getPath("Images/BCommon.bg")); }
    void install(const std::string& vendor) {
        const std::string set = context->getPath("ChartData/" + vendor);
        ASSERT_TRUE(makePath(set));
        ChartSetWriter writer(set);
        MarkElement mark;
        mark.name = vendor;
        writer.add(mark);
        ASSERT_TRUE(writer.finish());
        ASSERT_TRUE((SetDescription{1, vendor, vendor, vendor}.save(set + ".sci")));
    }
    /// A list, and the pictures of its tiles in one colour.
    void installTiles(const std::string& vendor, const std::list<int>& areas, irr::video::SColor color) {
        const std::string images = context->getPath("Images/");
        ASSERT_TRUE(makePath(getBgFolder(images, vendor)));
        ASSERT_TRUE(writeBgFile(images + vendor + ".bg", vendor, IArea::VFR, false, areas));
        irr::video::IImage* image = gl.driver()->createImage(irr::video::ECF_A8R8G8B8, {8, 8});
        image->fill(color);
        for (const int area : areas)
            gl.driver()->writeImageToFile(
                image, (getBgFolder(images, vendor) + "vfr_" + std::to_string(area) + ".png").c_str());
        image->drop();
    }

    TemporaryFolder folder;
    GlDevice gl{64, 64};
    std::unique_ptr<Context> context;
};

TEST_F(ExtendedChartTest, joinsTheVendorsOfChartsAndBackgrounds) {
    auto chart = open();
    EXPECT_EQ(chart->getVendorCount(), 0);
    EXPECT_EQ(chart->getCurrentVendor(), -1);
    EXPECT_EQ(chart->getCurrentVendorName(), "");
    chart->setCurrentVendor(0);
    installTiles("B", {7}, irr::video::SColor(0xffff0000));
    chart = open();
    EXPECT_EQ(chart->getCurrentVendorName(), "B");
    EXPECT_TRUE(chart->getTexture(IArea::VFR, 7));
    install("C");
    install("A");
    chart = open();
    EXPECT_EQ(chart->getVendorCount(), 3);
    EXPECT_EQ(chart->getVendorName(1), "B");
    EXPECT_EQ(chart->getVendorName(3), "");
    EXPECT_EQ(chart->getCurrentVendorName(), "A") << "the first that has charts";
    EXPECT_FALSE(chart->getTexture(IArea::VFR, 7));
    chart->setCurrentVendor(1);
    EXPECT_TRUE(chart->getTexture(IArea::VFR, 7));
    EXPECT_FALSE(chart->getChartElement(0));
    chart->setCurrentVendor(2);
    EXPECT_EQ(chart->getChartElement(0)->getTrieInsertionName(0), "C");
    EXPECT_EQ(chart->getMatchingChartElements("C", 10), std::list<int>{0});
    IChartElement* kept = chart->getChartElement(0);
    chart->setCurrentVendor(2);
    EXPECT_EQ(chart->getChartElement(0), kept) << "the current vendor again changes nothing";
    IniFile data(context->getPath("data/data.ini"));
    data.set("", "Vendor", "C");
    data.Save(context->getPath("data/data.ini"));
    EXPECT_EQ(open()->getCurrentVendor(), 2);
}

TEST_F(ExtendedChartTest, keepsTheTilesThatWereUsedLast) {
    installTiles("B", {1, 2, 3}, irr::video::SColor(0xff00ff00));
    const auto chart = open(2);
    const irr::u32 before = gl.driver()->getTextureCount();
    irr::video::ITexture* first = chart->getTexture(IArea::VFR, 1);
    ASSERT_TRUE(first);
    EXPECT_EQ(chart->getTexture(IArea::VFR, 1), first);
    EXPECT_EQ(static_cast<const uint32_t*>(first->lock(irr::video::ETLM_READ_ONLY))[0], 0xff00ff00u);
    first->unlock();
    EXPECT_FALSE(chart->getTexture(IArea::IFR_LOW, 1));
    EXPECT_FALSE(chart->getTexture(static_cast<IArea::BgType>(-1), 1));
    EXPECT_FALSE(chart->getTexture(static_cast<IArea::BgType>(4), 1));
    chart->getTexture(IArea::VFR, 2);
    chart->getTexture(IArea::VFR, 3);
    EXPECT_EQ(gl.driver()->getTextureCount(), before + 2) << "the first one has left the driver";
    chart->OnMustFreeMemory();
    EXPECT_EQ(gl.driver()->getTextureCount(), before);
    chart->getTexture(IArea::VFR, 1);
    chart->deleteBackgrounds();
    EXPECT_EQ(gl.driver()->getTextureCount(), before);
    EXPECT_FALSE(chart->getTexture(IArea::VFR, 1));
    chart->loadBackgrounds("B");
    EXPECT_TRUE(chart->getTexture(IArea::VFR, 1));
}

TEST_F(ExtendedChartTest, remembersThatATileIsMissing) {
    installTiles("B", {1}, irr::video::SColor(0xff00ff00));
    const std::string tile = getBgFolder(context->getPath("Images/"), "B") + "vfr_1.png";
    const auto chart = open();
    std::filesystem::rename(tile, tile + ".away");
    EXPECT_FALSE(chart->getTexture(IArea::VFR, 1));
    std::filesystem::rename(tile + ".away", tile);
    EXPECT_FALSE(chart->getTexture(IArea::VFR, 1)) << "the disk isn't asked again";
    chart->OnMustFreeMemory();
    EXPECT_TRUE(chart->getTexture(IArea::VFR, 1));
}

// Areas 7 and 8 are the western and the eastern half of area 6.
TEST_F(ExtendedChartTest, computesTheCoarserTilesOfVendorsWithNewOnes) {
    const std::string tiles = getBgFolder(context->getPath("Images/"), "B");
    installTiles("B", {7}, irr::video::SColor(0xff0000ff));
    installTiles("Clean", {7}, irr::video::SColor(0xff0000ff));
    ASSERT_TRUE(setFolderDirty(tiles, true));
    EXPECT_FALSE(open(80, false)->getTexture(IArea::VFR, 6)) << "the check counts as done";
    EXPECT_TRUE(isFolderDirty(tiles));
    const auto chart = open();
    EXPECT_FALSE(isFolderDirty(tiles));
    irr::video::ITexture* level = chart->getTexture(IArea::VFR, 6);
    ASSERT_TRUE(level);
    const auto* pixels = static_cast<const uint32_t*>(level->lock(irr::video::ETLM_READ_ONLY));
    EXPECT_EQ(pixels[32 * level->getPitch() / 4 + 16], 0xff0000ffu) << "where the first of 8 x 8 pixels lies";
    level->unlock();
    EXPECT_TRUE(chart->getTexture(IArea::VFR, 0)) << "up to the root";
    EXPECT_FALSE(std::filesystem::exists(context->getPath("Images/CleanCommon.bg")));
    EXPECT_FALSE(std::filesystem::exists(context->getPath("Images/BCommon_ifr.bg")));
    ASSERT_TRUE(setFolderDirty(tiles, true));
    chart->dirtyCheckAndSync(false);
    EXPECT_TRUE(isFolderDirty(tiles)) << "once";
    std::filesystem::remove(context->getPath("Images/B.bg"));
    chart->dirtyCheckAndSync(true);
    EXPECT_FALSE(isFolderDirty(tiles));
    EXPECT_FALSE(hasCommonList()) << "nothing to compute it from";
    EXPECT_FALSE(chart->getTexture(IArea::VFR, 6));
}

TEST_F(ExtendedChartTest, asksForBackgroundsAgainAfterACancel) {
    const std::string tiles = getBgFolder(context->getPath("Images/"), "B");
    std::list<int> many{7}; // more than a slow machine computes in the frames before the key
    for (int area = 9007; area < AreaCount; area += 9000)
        many.push_back(area);
    installTiles("B", many, irr::video::SColor(0xff0000ff));
    const auto chart = open();
    ASSERT_TRUE(setFolderDirty(tiles, true));
    FrameLoop frames(*context);
    ScriptedFrames script(frames);
    context->setFrames(&script);
    script.then([&] {
        irr::SEvent event{};
        event.EventType = irr::EET_KEY_INPUT_EVENT;
        event.KeyInput.Key = irr::KEY_ESCAPE;
        for (const bool down : {true, false}) {
            event.KeyInput.PressedDown = down;
            gl.device()->postEventFromUser(event);
        }
    });
    chart->dirtyCheckAndSync(true);
    EXPECT_TRUE(isFolderDirty(tiles));
    EXPECT_FALSE(hasCommonList());
    EXPECT_FALSE(std::filesystem::exists(tiles + "vfr_6.png"));
    EXPECT_TRUE(chart->getTexture(IArea::VFR, 7));
}

TEST_F(ExtendedChartTest, freesTheTerrainUnderPressureAndLiftsItsPause) {
    const auto chart = open();
    TerrainManager* terrain = chart->getTerrainManager();
    chart->OnMustFreeMemory();
    EXPECT_FALSE(terrain->isThreadPaused());
    terrain->pauseThread(true);
    chart->OnMustFreeMemory();
    EXPECT_TRUE(terrain->isThreadPaused()) << "a job's pause stays";
    terrain->pauseThread(false);
}

} // namespace

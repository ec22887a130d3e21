#include "terrain/jobs/BackgroundLevels.h"

#include "chart/areas/AreaFixture.h"
#include "terrain/files/BackgroundList.h"

namespace skyvane {
namespace {

class Tiles : public IBackgroundTiles {
public:
    bool load(int area, BackgroundImage& image) override {
        const auto it = images.find(area);
        if (it == images.end())
            return false;
        image = it->second;
        return true;
    }
    bool save(int area, const BackgroundImage& image) override {
        images[area] = image;
        return !full;
    }
    void remove(int area) override { images.erase(area); }
    std::map<int, BackgroundImage> images;
    bool full = false;
};

class Progress : public ITerrainProgress {
public:
    void setTitle(const std::string&) override {}
    void setProgress(double) override {}
    void setState(const std::string& text) override { states += text; }
    bool isCancelled() override { return cancelled; }
    std::string states;
    bool cancelled = false;
};

class BackgroundLevels : public AreaTest {
protected:
    Tiles tiles_;
    Progress progress_;
    BackgroundImage image_;
};

TEST_F(BackgroundLevels, areMeansOfWhatIsThere) {
    // Areas 7 and 8 are the western and the eastern half of area 6.
    tiles_.images[7] = {2, 2, {0xff000010, 0xff000030, 0x80000050, 0x00ffffff}};
    ASSERT_TRUE(calculateMipMapLevel(table(), 6, 2, tiles_, image_));
    EXPECT_EQ(image_.pixels, (std::vector<uint32_t>{0xff000020, 0, 0xff000050, 0}));
    tiles_.images[8] = {1, 1, {0xff123456}};
    ASSERT_TRUE(calculateMipMapLevel(table(), 6, 2, tiles_, image_));
    EXPECT_EQ(image_.pixels[3], 0xff123456u);
    tiles_.images[7] = {2, 2, {1}}; // fewer pixels than told
    tiles_.images.erase(8);
    EXPECT_FALSE(calculateMipMapLevel(table(), 6, 2, tiles_, image_));
    EXPECT_FALSE(calculateMipMapLevel(table(), 7, 2, tiles_, image_)) << "a leaf";
    EXPECT_FALSE(calculateMipMapLevel(table(), -5, 2, tiles_, image_));
}

TEST_F(BackgroundLevels, goUpToTheRootAndSpareWhatWasGiven) {
    tiles_.images[7] = {1, 1, {0xff0000ff}};
    tiles_.images[5] = {1, 1, {0xff00ff00}};
    std::list<int> computed;
    ASSERT_TRUE(calculateMipMaps({7, 5}, computed, 8, table(), tiles_, progress_));
    EXPECT_EQ(computed, (std::list<int>{6, 4, 3, 2, 1, 0}));
    EXPECT_EQ(tiles_.images[5].pixels[0], 0xff00ff00u);
    EXPECT_EQ(tiles_.images[4].pixels[2 * 8 + 2], 0xff00ff00u) << "one pixel, in the middle of area 5";
    EXPECT_EQ(progress_.states.substr(0, 28), "Processing level 1th of 7...");
    tiles_.full = true;
    EXPECT_FALSE(calculateMipMaps({7, 5}, computed, 8, table(), tiles_, progress_));
}

TEST_F(BackgroundLevels, areListedOnceAllAreMade) {
    const std::string images = folder_.path() + "/";
    tiles_.images[7] = {1, 1, {0xff0000ff}};
    ASSERT_TRUE(writeBgFile(images + "a.bg", "Maps", IArea::IFR_LOW, false, {7}));
    ASSERT_TRUE(writeBgFile(images + "b.bg", "Other", IArea::IFR_LOW, false, {900}));
    progress_.cancelled = true;
    EXPECT_FALSE(syncBackgrounds(images, "Maps", IArea::IFR_LOW, table(), tiles_, progress_));
    EXPECT_FALSE(std::filesystem::exists(images + "MapsCommon_ifr.bg"));
    progress_.cancelled = false;
    for (int run = 0; run < 2; ++run) {
        ASSERT_TRUE(syncBackgrounds(images, "Maps", IArea::IFR_LOW, table(), tiles_, progress_));
        bool common = false;
        EXPECT_EQ(parseBgFile(images + "MapsCommon_ifr.bg", nullptr, nullptr, nullptr, &common, nullptr),
                  (std::list<int>{6, 5, 4, 3, 2, 1, 0}));
        EXPECT_TRUE(common);
    }
    EXPECT_EQ(tiles_.images[0].width, BackgroundLevelSize);
}

} // namespace
} // namespace skyvane

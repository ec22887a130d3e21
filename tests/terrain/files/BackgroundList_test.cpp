#include "terrain/files/BackgroundList.h"

#include "sensors/TemporaryFolder.h"
#include "terrain/files/VendorBackgrounds.h"

#include <gtest/gtest.h>
#include <iterator>

namespace skyvane {
namespace {

struct Parsed {
    std::list<int> areas;
    std::string vendor = "-", second = "-", closing = "-";
    IArea::BgType type = IArea::VFR;
    bool common = false;
};

class BackgroundList : public ::testing::Test {
protected:
    Parsed parse(const std::string& name) {
        Parsed list;
        list.areas =
            parseBgFile(folder_.path(name), &list.vendor, &list.second, &list.type, &list.common, &list.closing);
        return list;
    }
    Parsed parseText(const std::string& text) {
        folder_.write("a.bg", text);
        return parse("a.bg");
    }

    TemporaryFolder folder_;
};

TEST_F(BackgroundList, isWrittenAndReadToTheByte) {
    const std::string path = folder_.path("a.bg");
    ASSERT_TRUE(writeBgFile(path, "Open Air", IArea::IFR_LOW, true, {9, 7, 431575}));
    std::ifstream in(path);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(in), {}), "Open Air\n0\nifr\n1\n9\n7\n431575\nN/A");
    const Parsed list = parse("a.bg");
    EXPECT_EQ(list.areas, (std::list<int>{9, 7, 431575}));
    EXPECT_EQ(list.vendor, "Open Air");
    EXPECT_EQ(list.type, IArea::IFR_LOW);
    EXPECT_TRUE(list.common);
    EXPECT_EQ(list.closing, "N/A");
    std::list<int> more = {8, 7, 1};
    ASSERT_TRUE(mergeBgFile(path, "Open Air", IArea::VFR, false, more));
    EXPECT_EQ(more, (std::list<int>{1, 7, 8, 9, 431575}));
    EXPECT_EQ(parse("a.bg").areas, more);
    EXPECT_FALSE(writeBgFile(folder_.path("no/a.bg"), "", IArea::VFR, false, {}));
}

TEST_F(BackgroundList, isReadAsFarAsItIsOne) {
    EXPECT_EQ(parseText("V\nx\nifrh\n0\nEnd").closing, "End");
    EXPECT_TRUE(parseText("V\nx\nifrh\n0\nEnd").areas.empty());
    EXPECT_EQ(parseText("V\nx\nanything\n0\nEnd").type, IArea::IFR_HIGH);
    EXPECT_EQ(parseText("V\nx\nvfr\n0\n0\n7\n431576\n99999999999\n8\nEnd").areas, (std::list<int>{0, 7}));
    EXPECT_EQ(parseText("V\nx\nvfr\n0\n5\n-1\n8\nEnd").areas, std::list<int>{5});
    EXPECT_EQ(parseText("V\nx\nvfr\n0\n5\n12").areas, std::list<int>{5}) << "a number that was cut is none";
    EXPECT_TRUE(parseText("").areas.empty());
    EXPECT_EQ(parse("none.bg").vendor, "-");
}

TEST_F(BackgroundList, namesItsTiles) {
    IArea::BgType type = IArea::IFR_HIGH;
    int area = -1;
    EXPECT_TRUE(parseBgFileName("vfr_7.png", type, area));
    EXPECT_EQ(type, IArea::VFR);
    EXPECT_EQ(area, 7);
    EXPECT_TRUE(parseBgFileName("ifr_431575.png", type, area));
    EXPECT_EQ(type, IArea::IFR_LOW);
    EXPECT_EQ(area, 431575);
    for (const char* name : {"ifrh_7.png", "vfr_.png", "vfr_7a.png", "vfr_7.jpg", "xfr_7.png", "vfr_-7.png", ".png",
                             "vfr_99999999999.png"})
        EXPECT_FALSE(parseBgFileName(name, type, area)) << name;
}

TEST_F(BackgroundList, ofAVendorStaysInItsFolder) {
    EXPECT_EQ(getBgFolder("/i/", "V"), "/i/V_Backgrounds/");
    EXPECT_EQ(getBgFolder("/i/", "../V"), "");
    std::filesystem::create_directory(folder_.path("V_Backgrounds"));
    for (const char* tile : {"V_Backgrounds/ifr_7.png", "V_Backgrounds/ifr_8.png", "V_Backgrounds/vfr_7.png"})
        folder_.write(tile, "");
    folder_.write("a.bg", "V\n0\nifr\n1\n7\n7\n431575\nN/A");
    const VendorBackgrounds list(folder_.path("a.bg"), folder_.path("") + "/");
    EXPECT_TRUE(list.isGood());
    EXPECT_TRUE(list.isCommon());
    EXPECT_EQ(list.calculateLeafList(), (std::list<int>{431575, 7}));
    EXPECT_TRUE(list.isBackgroundTextureLoadable(IArea::IFR_LOW, 7));
    EXPECT_FALSE(list.isBackgroundTextureLoadable(IArea::VFR, 7));
    EXPECT_FALSE(list.isBackgroundTextureLoadable(IArea::IFR_LOW, 4));
    EXPECT_EQ(list.getTilePath(7), folder_.path("V_Backgrounds/ifr_7.png"));
    list.deleteFromStorage();
    EXPECT_FALSE(std::filesystem::exists(folder_.path("V_Backgrounds/ifr_7.png")));
    EXPECT_TRUE(std::filesystem::exists(folder_.path("V_Backgrounds/ifr_8.png")));
    EXPECT_TRUE(std::filesystem::exists(folder_.path("V_Backgrounds/vfr_7.png")));
    EXPECT_FALSE(std::filesystem::exists(folder_.path("a.bg")));
    EXPECT_FALSE(VendorBackgrounds(folder_.path("none"), "/i/").isGood());
}

TEST_F(BackgroundList, foldersKeepTheirFlag) {
    EXPECT_FALSE(isFolderDirty(folder_.path()));
    for (const auto& [text, dirty] : {std::pair("dirty=0\n", false), std::pair("dirty=1\n", true),
                                      std::pair("dirty=2\n", true), std::pair("other=1\n", false)}) {
        folder_.write("dirty.ini", text);
        EXPECT_EQ(isFolderDirty(folder_.path()), dirty) << text;
    }
    for (const bool dirty : {true, false}) {
        ASSERT_TRUE(setFolderDirty(folder_.path(), dirty));
        EXPECT_EQ(isFolderDirty(folder_.path()), dirty);
    }
    EXPECT_FALSE(setFolderDirty(folder_.path("none"), true));
}

} // namespace
} // namespace skyvane

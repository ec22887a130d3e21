#include "core/files/HomeFolder.h"

#include "core/files/Paths.h"
#include "core/ini/IniFile.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <sys/stat.h>

namespace skyvane {
namespace {

namespace fs = std::filesystem;

constexpr StandardDocuments documents{"major = 1\nminor = 1\nfont = Roboto\n", "aircraftCount = 1\n", "SSID = name\n",
                                      "x = 1\n", "c = 2\n"};

class HomeFolderTest : public ::testing::Test {
protected:
    HomeFolderTest() {
        char name[] = "/tmp/skyvane_home_XXXXXX";
        base = std::string(mkdtemp(name)) + "/";
        path = base + "home/";
        fs::create_directory(path);
    }
    ~HomeFolderTest() override { fs::remove_all(base); }

    std::string read(const std::string& name) const {
        std::ifstream in(path + name, std::ios::binary);
        std::ostringstream text;
        text << in.rdbuf();
        return text.str();
    }
    void write(const std::string& name, const std::string& text) const { std::ofstream(path + name) << text; }

    std::string base;
    std::string path;
};

} // namespace

TEST_F(HomeFolderTest, AFirstStartMakesFoldersDocumentsAndTheMarker) {
    const HomeFolder home(path);
    EXPECT_TRUE(home.isFirstStart());
    EXPECT_TRUE(home.createDocuments(documents));
    EXPECT_TRUE(home.isFirstStart()) << "the marker comes last";
    EXPECT_TRUE(home.writeMarker());
    EXPECT_FALSE(home.isFirstStart());
    EXPECT_TRUE(fs::exists(path + "data/2.9_data_created"));

    for (const char* folder : {"data", "data/Packages", "customElements", "Screenshots"}) {
        struct stat status {};
        ASSERT_EQ(0, stat((path + folder).c_str(), &status)) << folder;
        EXPECT_EQ(0700u, status.st_mode & 0707u) << folder;
    }
    IniFile config(path + "data/config.ini");
    EXPECT_EQ("2", config.get("", "major"));
    EXPECT_EQ("9", config.get("", "minor"));
    EXPECT_EQ("Roboto", config.get("", "font"));
    EXPECT_EQ("c = 2\n", read("data/calibration.ini"));
    EXPECT_EQ("x = 1\n", read("data/extSensorConfig.ini"));
    EXPECT_EQ("SSID = name\n", read("data/hotspot.ini"));
    EXPECT_EQ("aircraftCount = 1\n", read("data/aircrafts.ini"));
}

TEST_F(HomeFolderTest, ANewVersionRenewsDocumentsButNotAircraftNorTheDataLocation) {
    const HomeFolder home(path);
    home.createDocuments(documents);
    home.saveDataPaths(DataPaths::below("/srv"));
    write("data/2.8_data_created", "");
    write("data/aircrafts.ini", "mine");
    write("data/recent", "EDDF");
    write("data/calibration.ini", "old");
    EXPECT_TRUE(home.isFirstStart());
    EXPECT_TRUE(home.createDocuments(documents));
    EXPECT_EQ("mine", read("data/aircrafts.ini"));
    EXPECT_EQ("c = 2\n", read("data/calibration.ini"));
    EXPECT_FALSE(fs::exists(path + "data/recent"));
    EXPECT_TRUE(home.hasDataLocation());
    EXPECT_EQ("/srv/.Skyvane/", home.readDataPaths().log);
}

TEST_F(HomeFolderTest, SettingsOfAnotherVersionAreKeptBesideTheStandardOnes) {
    const HomeFolder home(path);
    EXPECT_EQ("", home.findOtherConfigVersion());
    home.createDocuments(documents);
    EXPECT_EQ("", home.findOtherConfigVersion());
    EXPECT_TRUE(home.writeStandardConfig(documents.config));
    EXPECT_FALSE(fs::exists(path + "data/config.ini.old")) << "of this version";
    write("data/config.ini", "mine = 1\nmajor = 2\nminor = 7\n");
    EXPECT_EQ("2.7", home.findOtherConfigVersion());
    EXPECT_TRUE(home.writeStandardConfig(documents.config));
    EXPECT_EQ("mine = 1\nmajor = 2\nminor = 7\n", read("data/config.ini.old"));
    write("data/config.ini", "no version");
    EXPECT_EQ("", home.findOtherConfigVersion());
}

TEST_F(HomeFolderTest, WhatCannotBeMadeIsToldAndTheRestIsDone) {
    write("data", "a file where the folder should be");
    const HomeFolder home(path);
    EXPECT_FALSE(home.createDocuments(documents));
    EXPECT_FALSE(home.writeMarker());
    EXPECT_TRUE(home.isFirstStart());
    EXPECT_FALSE(home.saveDataPaths(DataPaths::below("/srv/")));
    EXPECT_FALSE(home.hasDataLocation());
    EXPECT_TRUE(fs::is_directory(path + "Screenshots"));
    EXPECT_EQ("a file where the folder should be", read("data"));
}

TEST_F(HomeFolderTest, DataPathsGoToDiskAsRootsAndComeBack) {
    const HomeFolder home(path);
    makePath(path + "data");
    EXPECT_FALSE(home.hasDataLocation());
    const DataPaths paths{"/a/.Skyvane/", "/b/.Skyvane/", "/odd/place/", "/d/.Skyvane/"};
    EXPECT_TRUE(home.saveDataPaths(paths));
    IniFile document(path + "data/data.ini");
    EXPECT_EQ("Skyvane", document.get("", "Vendor"));
    EXPECT_EQ("/a/", document.get("", "Backgrounds"));
    EXPECT_EQ("/b/", document.get("", "Terrain"));
    EXPECT_EQ("/odd/place/", document.get("", "Data"));
    EXPECT_EQ("/d/", document.get("", "Logs"));
    EXPECT_EQ("/a/.Skyvane/", home.readDataPaths().image);
    EXPECT_EQ("/odd/place/.Skyvane/", home.readDataPaths().data);

    document.set("", "Vendor", "Other");
    document.Save(path + "data/data.ini");
    home.saveDataPaths(paths);
    EXPECT_EQ("Other", IniFile(path + "data/data.ini").get("", "Vendor"));
}

TEST_F(HomeFolderTest, RootsThatAreMissingOrLackTheirSlashGetASaneMeaning) {
    const HomeFolder home(path);
    makePath(path + "data");
    write("data/data.ini", "Logs = /x\nTerrain =\n\xff\xfe garbage");
    const DataPaths paths = home.readDataPaths();
    EXPECT_EQ("/x/.Skyvane/", paths.log);
    EXPECT_EQ(path + ".Skyvane/", paths.terrain);
    EXPECT_EQ(path + ".Skyvane/", paths.image);
    EXPECT_TRUE(DataPaths::below(path).makeFolders());
    for (const char* folder : {"Images", "Terrain", "ChartData", "Logs"})
        EXPECT_TRUE(fs::is_directory(path + ".Skyvane/" + folder));
    write("blocked", "a file");
    EXPECT_FALSE(DataPaths::below(path + "blocked").makeFolders());
}

TEST_F(HomeFolderTest, TheRemovalListIsWorkedOffItsLastLineToo) {
    const HomeFolder home(path);
    makePath(path + "data");
    for (const char* name : {"one", "two words", "three", "kept"})
        write(name, "x");
    write("data/remList.txt", path + "one\n" + path + "two words\n\n" + path + "never there\n" + path + "three");
    home.removeLeftFiles();
    EXPECT_FALSE(fs::exists(path + "one") || fs::exists(path + "two words") || fs::exists(path + "three"));
    EXPECT_TRUE(fs::exists(path + "kept"));
    EXPECT_FALSE(fs::exists(path + "data/remList.txt"));
    home.removeLeftFiles(); // without a list
}

TEST_F(HomeFolderTest, TheFirstFolderThatCanReallyBeWrittenIsTaken) {
    write("occupied", "a file");
    fs::create_directory(path + "good");
    EXPECT_EQ(path + "good/", firstUsableDataRoot({"/proc", path + "occupied", "", path + "good", path}));
    EXPECT_TRUE(fs::is_empty(path + "good/.Skyvane"));
    EXPECT_EQ("", firstUsableDataRoot({"/proc"}));
    EXPECT_EQ("", firstUsableDataRoot({}));
}

TEST(DataPaths, EachPathHasItsFolder) {
    const DataPaths paths{"/i/", "/t/", "/c/", "/l/"};
    const auto absolute = [&](const char* path) { return paths.getAbsolutePath(path, "/home/"); };
    EXPECT_EQ("/etc/x", absolute("/etc/x"));
    EXPECT_EQ("C:/x", absolute("C:/x"));
    EXPECT_EQ("d:\\x", absolute("d:\\x"));
    EXPECT_EQ("/home/C:x", absolute("C:x"));
    EXPECT_EQ("/i/Images/a.png", absolute("Images/a.png"));
    EXPECT_EQ("/t/Terrain/", absolute("Terrain/"));
    EXPECT_EQ("/c/ChartData/x", absolute("ChartData/x"));
    EXPECT_EQ("/l/Logs/log.txt", absolute("Logs/log.txt"));
    EXPECT_EQ("/home/Images", absolute("Images")) << "without the slash";
    EXPECT_EQ("/home/images/x", absolute("images/x"));
    EXPECT_EQ("/home/", absolute(""));
    EXPECT_EQ("media/a.png", paths.getAbsolutePath("media/a.png", ""));
}

} // namespace skyvane

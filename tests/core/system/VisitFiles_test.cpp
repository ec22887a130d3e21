#include "core/system/VisitFiles.h"

#include "core/ICommonAppContext.h"
#include "core/engine/EngineRef.h"
#include "core/engine/Screenshot.h"
#include "core/system/CopyFiles.h"
#include "core/system/FileCopier.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <set>

namespace skyvane {
namespace {

namespace fs = std::filesystem;

class Noter : public IFileOperator {
public:
    void OnFileRead(const irr::core::stringc& name, const irr::core::stringc& fullName, unsigned size,
                    bool isDirectory) override {
        seen.insert(std::string(fullName.c_str()) + (isDirectory ? "/" : "=" + std::to_string(size)));
        EXPECT_EQ(fs::path(fullName.c_str()).filename(), name.c_str());
    }
    void OnDirChange(const std::string& path) override { folders.insert(path); }
    std::set<std::string> seen;
    std::set<std::string> folders;
};

class AppContext : public ICommonAppContext {
public:
    IMultiEventReceiver* getEventReceiver() override { return nullptr; }
    Drawer2D* getDrawer() override { return nullptr; }
    irr::IrrlichtDevice* getIrrlichtDevice() override { return device; }
    FlexibleFont* getFlexibleFont() override { return nullptr; }
    int getRecommendedButtonWidth() override { return 1; }
    int getRecommendedButtonHeight() override { return 1; }
    std::string getPath(const std::string& path) override { return path; }
    void setSoftInputVisibility(bool) override {}
    void gotoURL(const std::string&) override {}
    irr::IrrlichtDevice* device = nullptr;
};

class VisitFilesTest : public ::testing::Test {
protected:
    VisitFilesTest() {
        char name[] = "/tmp/skyvane_visit_XXXXXX";
        base = mkdtemp(name);
        device = EngineRef<irr::IrrlichtDevice>::adopt(irr::createDevice(irr::video::EDT_NULL));
        context.device = device.get();
        fs::create_directories(base + "/tree/sub/empty");
        std::ofstream(base + "/tree/a.txt") << "12345";
        std::ofstream(base + "/tree/sub/b c.bin") << std::string(2000, 'x');
    }
    ~VisitFilesTest() override { fs::remove_all(base); }

    std::string base;
    EngineRef<irr::IrrlichtDevice> device;
    AppContext context;
};

} // namespace

TEST_F(VisitFilesTest, ShowsEveryEntryOnceAndPutsTheWorkingDirectoryBack) {
    const fs::path before = fs::current_path();
    Noter noter;
    visitFiles(device->getFileSystem(), &noter, base + "/tree/");
    const std::string tree = base + "/tree";
    EXPECT_EQ(
        (std::set<std::string>{tree + "/a.txt=5", tree + "/sub/", tree + "/sub/b c.bin=2000", tree + "/sub/empty/"}),
        noter.seen);
    EXPECT_EQ((std::set<std::string>{tree, tree + "/sub", tree + "/sub/empty"}), noter.folders);
    EXPECT_EQ(before, fs::current_path());
}

TEST_F(VisitFilesTest, ALinkBackUpEndsThere) {
    fs::create_directory_symlink("..", base + "/tree/sub/up");
    Noter noter;
    visitFiles(device->getFileSystem(), &noter, base + "/tree");
    EXPECT_EQ(5u, noter.seen.size());
}

TEST_F(VisitFilesTest, AMissingFolderHasNoEntries) {
    Noter noter;
    visitFiles(device->getFileSystem(), &noter, base + "/nothing");
    EXPECT_TRUE(noter.seen.empty() && noter.folders.empty());
    unsigned long size = 7;
    countFileSize(device->getFileSystem(), base + "/nothing", size);
    EXPECT_EQ(0u, size);
    countFileSize(device->getFileSystem(), base + "/tree/sub/empty", size);
    EXPECT_EQ(0u, size);
    countFileSize(device->getFileSystem(), base + "/tree", size);
    EXPECT_GE(size, 2005u);
}

TEST_F(VisitFilesTest, CopiesATreeWithItsEmptyFolders) {
    const auto done = copyFiles(&context, base + "/tree/", base + "/copy/deep/");
    EXPECT_EQ(2u, done.size());
    EXPECT_EQ(2000u, fs::file_size(base + "/copy/deep/sub/b c.bin"));
    EXPECT_TRUE(fs::is_directory(base + "/copy/deep/sub/empty"));
    EXPECT_TRUE(fs::exists(base + "/tree/a.txt")) << "the former files stay";
}

TEST_F(VisitFilesTest, RefusesToCopyIntoItselfOrWhereNoFolderCanBe) {
    EXPECT_TRUE(copyFiles(&context, base + "/tree", base + "/tree/sub/inside").empty());
    EXPECT_TRUE(copyFiles(&context, base + "/tree", base + "/tree/a.txt").empty());
    EXPECT_EQ(5u, fs::file_size(base + "/tree/a.txt"));
}

TEST_F(VisitFilesTest, PicturesAreNumberedByTheEntriesAndNeverReplaceOne) {
    irr::io::IFileSystem* files = device->getFileSystem();
    const std::string folder = base + "/shots/";
    EXPECT_EQ("", nextScreenshotName(folder, files));
    fs::create_directory(folder);
    const std::string first = nextScreenshotName(folder, files);
    std::ofstream(first) << "x";
    const std::string second = nextScreenshotName(folder, files);
    EXPECT_NE(first, second);
    std::ofstream(second) << "x";
    fs::remove(first);
    const std::string third = nextScreenshotName(folder, files);
    EXPECT_FALSE(fs::exists(third)) << "a gap in the numbers must not lead to an older picture";
    EXPECT_EQ(".png", fs::path(third).extension());
}

} // namespace skyvane

#include "core/files/FileMoving.h"
#include "core/files/MountPoint.h"
#include "core/files/PartialFile.h"
#include "core/files/Paths.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace skyvane {
namespace {

std::string contentOf(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

class Files : public testing::Test {
protected:
    Files() { std::filesystem::create_directory(folder); }
    ~Files() override { std::filesystem::remove_all(folder); }
    const std::string folder = testing::TempDir() + "skyvane_files_test/";
};

TEST(Paths, areTakenApartAndCleaned) {
    EXPECT_EQ(getAppHomePathFromArgV0("/opt/skyvane/bin/skyvane"), "/opt/skyvane/bin/");
    EXPECT_EQ(getAppHomePathFromArgV0("C:\\x/y\\skyvane"), "C:\\x/y\\");
    EXPECT_EQ(getAppHomePathFromArgV0("skyvane"), "");
    EXPECT_EQ(getAppHomePathFromArgV0(nullptr), "");
    EXPECT_EQ(cleanPath("//a///b/c//"), "/a/b/c/");
    EXPECT_EQ(cleanPath(""), "");
}

TEST(Paths, spaceReadsInItsUnit) {
    EXPECT_EQ(humanReadableSpace(0, 1000.0), "0 KB");
    EXPECT_EQ(humanReadableSpace(1234, 1000.0), "1.23 KB");
    EXPECT_EQ(humanReadableSpace(102399, 1000.0), "102.4 KB");
    EXPECT_EQ(humanReadableSpace(102400, 1000.0), "0.1 MB");
    EXPECT_EQ(humanReadableSpace(104857599, 1000.0), "104.86 MB");
    EXPECT_EQ(humanReadableSpace(104857600, 1000.0), "0.1 GB");
    EXPECT_EQ(humanReadableSpace(1536, 1024.0), "1.5 KB");
}

TEST_F(Files, foldersAreMadeAndFilesWritten) {
    EXPECT_TRUE(makePath(folder + "a/b/c"));
    EXPECT_TRUE(makePath(folder + "a/b/c/")) << "there already";
    EXPECT_FALSE(makePath(""));
    EXPECT_TRUE(writeStringToFile(folder + "a/file", std::string("x\0y", 3)));
    EXPECT_EQ(contentOf(folder + "a/file"), std::string("x\0y", 3));
    EXPECT_TRUE(fileExist(folder + "a/file"));
    EXPECT_FALSE(fileExist(folder + "a"));
    EXPECT_FALSE(fileExist(folder + "none"));
    EXPECT_FALSE(makePath(folder + "a/file")) << "a file is no folder";
    EXPECT_FALSE(makePath(folder + "a/file/x"));
    EXPECT_FALSE(writeStringToFile(folder + "none/file", "x"));
    EXPECT_FALSE(writeStringToFile("/dev/full", "x"));
    EXPECT_GE(getFileSystemBlockSize(folder), 512u);
    EXPECT_EQ(getFileSystemBlockSize(folder + "none"), 4096u);
}

TEST(MountPoints, areParsed) {
    const char text[] = "/dev/sda1 / ext4 rw 0 0\n"
                        "/dev/sdb1 /media/My\\040Data\\134x\\04 vfat rw 0 0\n"
                        "short\n\n"
                        "tmpfs /run/user tmpfs";
    EXPECT_EQ(parseMountPaths(text), (std::vector<std::string>{"/", "/media/My Data\\x\\04", "/run/user"}));
}

TEST(MountPoints, comeWithTheirRoom) {
    const auto root = measureMountPoint("/");
    ASSERT_TRUE(root);
    EXPECT_EQ(root->name, "/");
    EXPECT_GE(root->totalBytes, root->freeBytes);
    EXPECT_FALSE(measureMountPoint("/no such folder"));
    const auto points = getUsableMountPoints();
    unsigned long long last = ~0ull;
    for (const MountPoint& point : points) {
        EXPECT_LE(point.freeBytes, last);
        EXPECT_TRUE(std::filesystem::is_directory(point.path)) << point.path;
        last = point.freeBytes;
    }
}

TEST_F(Files, areCopiedInOrderUntilOneFails) {
    std::list<FilePair> pairs;
    for (int i = 0; i < 250; ++i) {
        const std::string name = std::to_string(i);
        writeStringToFile(folder + name, std::string(static_cast<size_t>(i) * 7, 'x') + name);
        pairs.emplace_back(folder + name, folder + "copy" + name);
    }
    std::vector<double> shares;
    EXPECT_EQ(copyFilePairs(pairs, [&](double share) { shares.push_back(share); }), pairs);
    for (const FilePair& pair : pairs)
        EXPECT_EQ(contentOf(pair.first), contentOf(pair.second));
    ASSERT_EQ(shares.size(), 84u) << "every third of 250 is more than a hundredth on";
    EXPECT_EQ(shares.front(), 0.0);
    EXPECT_EQ(copyProgressText(0.425), "Copying files: 43%");

    const auto ignore = [](double) {};
    std::list<FilePair> bad{pairs.front(), {folder + "none", folder + "y"}, pairs.back()};
    EXPECT_EQ(copyFilePairs(bad, ignore), std::list<FilePair>{pairs.front()});
    bad = {{folder + "249", "/dev/full"}};
    EXPECT_TRUE(copyFilePairs(bad, ignore).empty());
    bad = {{folder + "249", folder + "./249"}};
    EXPECT_TRUE(copyFilePairs(bad, ignore).empty());
    EXPECT_EQ(contentOf(folder + "249").size(), 249u * 7 + 3) << "a file copied onto itself is kept";
    bad = {{folder, folder + "z"}};
    EXPECT_TRUE(copyFilePairs(bad, ignore).empty());
}

TEST_F(Files, ofTheRemovalListGo) {
    for (const char* name : {"a b", "c", "keep"})
        writeStringToFile(folder + name, "x");
    writeStringToFile(folder + "list",
                      folder + "a b\n\n" + folder + "none\n" + folder + "keep" + '\0' + "x\n" + folder + "c");
    removeListedFiles(folder + "list");
    EXPECT_FALSE(fileExist(folder + "a b"));
    EXPECT_FALSE(fileExist(folder + "c"));
    EXPECT_TRUE(fileExist(folder + "keep")) << "no name has a zero byte";
    EXPECT_FALSE(fileExist(folder + "list"));
    removeListedFiles(folder + "list");
}

TEST_F(Files, areReadThroughAWindow) {
    std::string whole;
    for (int i = 0; i < 5000; ++i)
        whole += static_cast<char>(i * 31 % 251);
    writeStringToFile(folder + "big", whole);
    PartialFile file(folder + "big", 100, 30);
    std::string read;
    for (size_t step = 0; file.good() && !file.finished(); step = (step + 7) % 30) {
        file.update();
        ASSERT_EQ(file.getOffsetInFile(), read.size());
        ASSERT_TRUE(file.available() > 30 || read.size() + file.available() == whole.size());
        const size_t count = std::min(step + 1, file.available());
        read.append(reinterpret_cast<const char*>(file.data()), count);
        EXPECT_TRUE(file.skip(count));
    }
    EXPECT_EQ(read, whole);
    EXPECT_FALSE(file.skip(1));
    EXPECT_EQ(file.getOffsetInFile(), whole.size());

    EXPECT_FALSE(PartialFile(folder + "none", 10, 5).good());
    EXPECT_TRUE(PartialFile(folder + "none", 10, 5).finished());
    PartialFile directory(folder, 10, 5);
    directory.update();
    EXPECT_TRUE(directory.finished());
}

} // namespace
} // namespace skyvane

#include "sensors/log/ReadAhead.h"

#include "sensors/TemporaryFolder.h"
#include "sensors/log/FileWindow.h"

#include <cstring>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <random>

namespace skyvane {
namespace {

constexpr size_t FileBytes = 3 * 1024 * 1024 + 77;

class ReadAheadFile : public testing::Test {
protected:
    ReadAheadFile() {
        std::mt19937 random(11);
        for (char& byte : content_)
            byte = static_cast<char>(random());
        std::ofstream(path_, std::ios::binary).write(content_.data(), static_cast<long>(content_.size()));
    }

    TemporaryFolder folder_;
    std::string path_ = folder_.path() + "/walked.bin";
    std::vector<char> content_ = std::vector<char>(FileBytes);
};

TEST_F(ReadAheadFile, GivesTheBytesOfTheFileAlongAnyWalk) {
    for (const size_t longestStep : {1u, 5000u, 900000u}) {
        const FileWindow file(path_);
        ReadAhead ahead(file);
        std::mt19937 random(3);
        size_t checked = 0;
        for (size_t offset = 0; offset < FileBytes && checked < 50000; ++checked) {
            const size_t count = std::min<size_t>(1 + random() % ReadAhead::MostBytes, FileBytes - offset);
            const uint8_t* bytes = ahead.at(offset, count);
            ASSERT_NE(bytes, nullptr) << offset;
            ASSERT_EQ(std::memcmp(bytes, content_.data() + offset, count), 0) << offset;
            offset += 1 + random() % longestStep;
        }
        EXPECT_GT(checked, 1u);
    }
}

TEST_F(ReadAheadFile, RefusesWhatIsNotThere) {
    const FileWindow file(path_);
    ReadAhead ahead(file);
    EXPECT_EQ(ahead.at(FileBytes - 3, 4), nullptr);
    EXPECT_EQ(ahead.at(~uint64_t{0}, 4), nullptr);
    EXPECT_EQ(ahead.at(0, ReadAhead::MostBytes + 1), nullptr);
    EXPECT_NE(ahead.at(2000000, 4), nullptr);
    EXPECT_EQ(ahead.at(0, 4), nullptr) << "what lies behind is gone";
    EXPECT_NE(ahead.at(FileBytes - 4, 4), nullptr);
}

TEST_F(ReadAheadFile, EndsWhereAFileHasShrunkMeanwhile) {
    const FileWindow file(path_);
    std::filesystem::resize_file(path_, 1000);
    ReadAhead ahead(file);
    EXPECT_NE(ahead.at(0, 1000), nullptr);
    EXPECT_EQ(ahead.at(998, 4), nullptr);
    EXPECT_EQ(ahead.at(FileBytes - 4, 4), nullptr);
    EXPECT_EQ(ahead.at(FileBytes - 2, 2), nullptr);
}

} // namespace
} // namespace skyvane

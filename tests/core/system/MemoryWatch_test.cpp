#include "core/system/MemoryWatch.h"

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <unistd.h>

namespace skyvane {
namespace {

class MemoryWatchTest : public ::testing::Test {
protected:
    ~MemoryWatchTest() override { unlink(name.c_str()); }

    void setMemory(int availableThousandths) {
        std::ofstream(name) << "MemTotal:       1000000 kB\nMemFree:  1 kB\nMemAvailable:   "
                            << availableThousandths * 1000 << " kB\nBuffers: 7 kB\n";
    }
    /// The next look, one period later.
    bool look() { return watch.poll(now += MemoryWatch::PeriodMilliseconds); }

    static std::string makeFile() {
        char file[] = "/tmp/skyvane_memory_XXXXXX";
        const int descriptor = mkstemp(file);
        if (descriptor >= 0)
            close(descriptor);
        return file;
    }

    std::string name = makeFile();
    MemoryWatch watch{name};
    unsigned now = 0;
};

} // namespace

TEST_F(MemoryWatchTest, TellsAShortageOnceUntilMemoryHasRecovered) {
    setMemory(500);
    EXPECT_FALSE(look());
    setMemory(49);
    EXPECT_TRUE(look());
    EXPECT_FALSE(look());
    setMemory(80); // not enough to count as recovered
    EXPECT_FALSE(look());
    setMemory(30);
    EXPECT_FALSE(look());
    setMemory(150);
    EXPECT_FALSE(look());
    setMemory(30);
    EXPECT_TRUE(look());
}

TEST_F(MemoryWatchTest, LooksSeldom) {
    setMemory(500);
    EXPECT_FALSE(watch.poll(5));
    setMemory(10);
    EXPECT_FALSE(watch.poll(5 + MemoryWatch::PeriodMilliseconds - 1));
    EXPECT_TRUE(watch.poll(5 + MemoryWatch::PeriodMilliseconds));
}

TEST_F(MemoryWatchTest, AFileThatSaysNothingIsNoShortage) {
    std::ofstream(name) << "MemTotal: 0 kB\nMemAvailable: 0 kB\n";
    EXPECT_FALSE(look());
    std::ofstream(name) << "MemTotal: 1000 kB\n";
    EXPECT_FALSE(look());
    std::ofstream(name) << std::string(5000, '\xff');
    EXPECT_FALSE(look());
    unlink(name.c_str());
    EXPECT_FALSE(look());
}

} // namespace skyvane

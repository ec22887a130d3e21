#include "core/log/Logger.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <thread>

namespace skyvane {
namespace {

std::string contentOf(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

TEST(Logger, holdsOneRunOnly) {
    const std::string folder = testing::TempDir();
    Logger(folder).log("old run\n", Logger::ToFile);
    EXPECT_EQ(logger, nullptr);
    {
        Logger log(folder);
        EXPECT_EQ(logger, &log);
        log.log("text ", Logger::ToFile);
        log.log(std::string("string "), Logger::ToFile);
        log.log(0.5, Logger::ToFile);
        log.log(-3, Logger::ToFile);
        log.log(7ul, Logger::ToFile);
        logText(" end\n", Logger::ToFile);
    }
    EXPECT_EQ(contentOf(folder + "log.txt"), folder + "\ntext string 0.5-37 end\n");
}

TEST(Logger, sortsTextByItsFlags) {
    testing::internal::CaptureStdout();
    {
        Logger log(testing::TempDir());
        const int more = log.createAdditionalLogFile("more.txt");
        EXPECT_EQ(more, 1);
        log.log("both", Logger::ToBoth, more);
        log.log("console\n", Logger::ToConsole);
        log.log("", Logger::ToConsole);
        log.log("nowhere", Logger::ToFile, 99);
        log.log("nowhere", Logger::ToFile, -1);
    }
    logText("after");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "both\nconsole\nafter\n");
    EXPECT_EQ(contentOf(testing::TempDir() + "more.txt"), "both");
}

TEST(Logger, goesOnWithoutItsFile) {
    Logger log(testing::TempDir() + "no such folder");
    log.log("lost", Logger::ToFile);
    EXPECT_EQ(log.createAdditionalLogFile("x"), 1);
}

TEST(Logger, keepsEntriesOfManyThreadsWhole) {
    {
        Logger log(testing::TempDir());
        std::thread other([&log] {
            for (int i = 0; i < 500; ++i)
                log.log("aaaaaaaaaaaaaaaaaaaaaaaa\n", Logger::ToFile);
        });
        for (int i = 0; i < 500; ++i)
            log.log("bbbbbbbbbbbbbbbbbbbbbbbb\n", Logger::ToFile);
        other.join();
    }
    std::ifstream in(testing::TempDir() + "log.txt");
    std::string line;
    std::getline(in, line);
    int lines = 0;
    for (; std::getline(in, line); ++lines)
        EXPECT_TRUE(line == std::string(24, 'a') || line == std::string(24, 'b')) << line;
    EXPECT_EQ(lines, 1000);
}

} // namespace
} // namespace skyvane

#include "chart/geodesy/ChartPosition.h"
#include "core/ScreenMetrics.h"
#include "core/system/FramePacer.h"
#include "core/system/FrameStats.h"
#include "core/system/MemoryTest.h"
#include "core/system/OpenUrl.h"
#include "core/time/Time.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace skyvane {

TEST(ScreenMetrics, RoundFromTheRootOfThePixelCount) {
    const ScreenMetrics metrics(1280, 720); // root 960
    EXPECT_EQ(921600, metrics.pixelCount);
    EXPECT_EQ(121, metrics.buttonWidth); // 121.43
    EXPECT_EQ(47, metrics.buttonHeight); // 47.43
    EXPECT_EQ(364, metrics.largeUnit);   // 364.29
    EXPECT_FALSE(metrics.portrait);
    EXPECT_FALSE(ScreenMetrics(800, 800).portrait);
    EXPECT_TRUE(ScreenMetrics(800, 801).portrait);
}

TEST(FramePacer, FillsUpShortFramesOnly) {
    ManualClock clock;
    setClock(&clock);
    FramePacer pacer;
    const auto waited = [&](double work) {
        clock.advance(work);
        const unsigned before = MilliSecs();
        pacer.wait();
        return MilliSecs() - before;
    };
    EXPECT_EQ(26u, waited(0.010));
    EXPECT_EQ(36u, waited(0.0));
    EXPECT_EQ(1u, waited(0.035));
    EXPECT_EQ(0u, waited(0.036));
    EXPECT_EQ(0u, waited(5.0));
    EXPECT_EQ(16u, waited(0.020));
    setClock(nullptr);
}

TEST(MemoryTest, TheLimitIsAMillionShortOfWhatTheWordsSay) {
    EXPECT_TRUE(isMemoryEnough(999000000));
    EXPECT_FALSE(isMemoryEnough(998999999));
    EXPECT_EQ(L"Error: Not enough memory (952MB RAM) installed.\nAt least 1024MB RAM are required to run \"Skyvane\".",
              notEnoughMemoryText(998999999));
    EXPECT_GT(readInstalledMemory(), 1000000ull);
}

TEST(OpenUrl, PlainUrlsStayAsTheyAre) {
    EXPECT_EQ("xdg-open \"https://a.example/x?y=1&z=%20#top\" &", openUrlCommand("https://a.example/x?y=1&z=%20#top"));
    EXPECT_EQ("xdg-open \"https://www.google.com/maps/place/-33.5,151.25/@-33.5,151.25,14z\" &",
              openUrlCommand(mapUrl(ChartPosition(151.25, -33.5))));
}

TEST(OpenUrl, NothingEscapesTheQuotes) {
    const std::string hostile = "--x\"; touch /tmp/skyvane_escaped; \"$(touch a)`touch b`\\\"\n!touch c";
    const std::string command = openUrlCommand(hostile);
    EXPECT_EQ("xdg-open \"x%22;%20touch%20/tmp/skyvane_escaped;%20%22%24(touch%20a)%60touch%20b%60%5C%22%0A%21touch%20c"
              "\" &",
              command);
    // The shell itself, with a script in place of the browser, hands it one argument.
    char folder[] = "/tmp/skyvane_open_XXXXXX";
    ASSERT_NE(nullptr, mkdtemp(folder));
    const std::string script = std::string(folder) + "/xdg-open";
    std::ofstream(script) << "#!/bin/sh\nprintf '%s|%s' $# \"$1\"\n";
    chmod(script.c_str(), 0700);
    FILE* shell = popen(("PATH=" + std::string(folder) + ":$PATH\n" + command + "\nwait").c_str(), "r");
    ASSERT_NE(nullptr, shell);
    char answer[512] = {};
    EXPECT_GT(std::fread(answer, 1, sizeof answer - 1, shell), 0u);
    pclose(shell);
    unlink(script.c_str());
    rmdir(folder);
    EXPECT_EQ(std::string("1|"), std::string(answer).substr(0, 2)) << answer;
    EXPECT_NE(0, access("/tmp/skyvane_escaped", F_OK));
}

TEST(FrameStats, ListsTheWorkOfEachFrameWithoutThePause) {
    char name[] = "/tmp/skyvane_stats_XXXXXX";
    close(mkstemp(name));
    FrameStats stats(name);
    for (int i = 0; i < 3; ++i) {
        stats.beginFrame();
        stats.pauseFrame();
        usleep(20000);
        stats.resumeFrame();
        stats.endFrame();
    }
    EXPECT_TRUE(stats.write());
    std::ifstream in(name);
    std::string line;
    std::getline(in, line);
    EXPECT_EQ(0u, line.find("firstFrameSeconds="));
    const double firstFrame = std::atof(line.c_str() + 18);
    EXPECT_GT(firstFrame, 0.0);
    EXPECT_LT(firstFrame, 3600.0);
    std::getline(in, line);
    EXPECT_EQ(0u, line.find("firstFrameMonotonicSeconds="));
    std::getline(in, line);
    EXPECT_EQ("frames=3", line);
    int frames = 0;
    for (; std::getline(in, line); ++frames) {
        ASSERT_EQ(0u, line.find("workMilliseconds="));
        EXPECT_LT(std::atof(line.c_str() + 17), 15.0) << "the pause of 20 ms counts as work";
    }
    EXPECT_EQ(3, frames);
    unlink(name);
    EXPECT_FALSE([] {
        FrameStats nowhere("/proc/nowhere/stats");
        return nowhere.write();
    }());
    EXPECT_TRUE(FrameStats("").write());
}

TEST(FrameStats, EndsAfterTheFramesThatWereWanted) {
    FrameStats stats("", 2);
    stats.endFrame();
    EXPECT_FALSE(stats.isEnough());
    stats.endFrame();
    EXPECT_TRUE(stats.isEnough());
    FrameStats endless("");
    endless.endFrame();
    EXPECT_FALSE(endless.isEnough());
}

} // namespace skyvane

// From the start of the process to the first frame: against the engine's empty window, and with the fictional region's
// charts, terrain and recorded flight loaded.
#include "Bench.h"

#include "core/text/Numbers.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

namespace skyvane {

namespace {

std::string homeCalled(const char* name) {
    return benchBuildFolder() + "/" + name;
}

/// By a script of the demo.
bool prepareHome(const char* script, const std::string& home) {
    return std::system(
               ("tools/demo/" + std::string(script) + " " + benchBuildFolder() + " " + home + " >/dev/null").c_str()) ==
           0;
}

/// Seconds from the program's start to its first frame, as it tells itself.
double firstFrameSeconds(const std::string& home) {
    const std::string stats = home + "/frame-stats.txt";
    std::remove(stats.c_str());
    const std::string command = "SKYVANE_CHOOSE_PROFILE=0 SKYVANE_FRAME_STATS=" + stats + " SKYVANE_FRAMES=1 " + home +
                                "/skyvane 1280 720 >/dev/null 2>&1";
    if (std::system(command.c_str()) != 0)
        return std::nan("");
    std::ifstream in(stats);
    const std::string key = "firstFrameSeconds=";
    for (std::string line; std::getline(in, line);)
        if (line.compare(0, key.size(), key) == 0)
            return toDouble(line.substr(key.size()), std::nan(""));
    return std::nan("");
}

double emptyWindowSeconds() {
    const std::string program = benchBuildFolder() + "/benchmarks/empty_window";
    return secondsOf([&program] { (void)!std::system((program + " 1280 720 >/dev/null 2>&1").c_str()); });
}

double firstFrameRatio(bool smoke) {
    const std::string home = homeCalled("bench-home");
    if (!prepareHome("prepare-home.sh", home))
        return std::nan("");
    const auto start = [&home] { return firstFrameSeconds(home); };
    start(); // warms the disk's cache
    return ratioOfMedians(smoke ? 1 : 7, start, emptyWindowSeconds);
}

double regionSeconds(bool smoke) {
    const std::string home = homeCalled("bench-region-home");
    if (!prepareHome("prepare-flight.sh", home))
        return std::nan("");
    firstFrameSeconds(home); // warms the disk's cache
    std::vector<double> seconds;
    for (int round = 0; round < (smoke ? 1 : 7); ++round)
        seconds.push_back(firstFrameSeconds(home));
    return median(seconds);
}

} // namespace

std::vector<Bench> startBenches() {
    return {{"start.first-frame", Bench::Bound::AtMost, 3, firstFrameRatio},
            {"start.region-seconds", Bench::Bound::AtMost, 3, regionSeconds}};
}

} // namespace skyvane

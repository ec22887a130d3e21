// From the start of the process to the first frame, against the engine's empty window.
#include "Bench.h"

#include "core/text/Numbers.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

namespace skyvane {

namespace {

std::string statsFile() {
    return benchBuildFolder() + "/bench-home/frame-stats.txt";
}

bool prepareHome() {
    const std::string& build = benchBuildFolder();
    return std::system(("tools/demo/prepare-home.sh " + build + " " + build + "/bench-home >/dev/null").c_str()) == 0;
}

/// Seconds from the program's start to its first frame, as it tells itself.
double firstFrameSeconds() {
    std::remove(statsFile().c_str());
    const std::string program = benchBuildFolder() + "/bench-home/skyvane";
    const std::string command =
        "SKYVANE_FRAME_STATS=" + statsFile() + " SKYVANE_FRAMES=1 " + program + " 1280 720 >/dev/null 2>&1";
    if (std::system(command.c_str()) != 0)
        return std::nan("");
    std::ifstream in(statsFile());
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
    if (!prepareHome())
        return std::nan("");
    firstFrameSeconds(); // warms the disk's cache
    return ratioOfMedians(smoke ? 1 : 7, firstFrameSeconds, emptyWindowSeconds);
}

} // namespace

std::vector<Bench> startBenches() {
    return {{"start.first-frame", Bench::Bound::AtMost, 3, firstFrameRatio}};
}

} // namespace skyvane

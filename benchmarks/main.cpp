#include "Bench.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <unistd.h>

namespace skyvane {

namespace {

std::string buildFolder;

/// One line for each file beside this one.
using MakeBenches = std::vector<Bench> (*)();
constexpr MakeBenches allBenches[] = {
    recordBenches,    //
    logBenches,       //
    nmeaBenches,      //
    frameBenches,     //
    startBenches,     //
    areaBenches,      //
    dialogBenches,    //
    chartBenches,     //
    terrainBenches,   //
    labelBenches,     //
    gdl90Benches,     //
    planBenches,      //
    hypertextBenches, //
    mapBenches,       visionBenches, sideViewBenches,
};

bool holds(const Bench& bench, double value) {
    return bench.kind == Bench::Bound::AtMost ? value <= bench.limit : value >= bench.limit;
}

/// What the measured program says goes to a file; the figures keep the standard output for themselves.
FILE* keepFiguresApart() {
    std::fflush(stdout);
    FILE* figures = ::fdopen(::dup(STDOUT_FILENO), "w");
    const std::string log = buildFolder + "/bench-output.log";
    if (!figures || !std::freopen(log.c_str(), "w", stdout))
        return stdout;
    return figures;
}

} // namespace

const std::string& benchBuildFolder() {
    return buildFolder;
}

double secondsOf(const std::function<void()>& work) {
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    work();
    return std::chrono::duration<double>(Clock::now() - start).count();
}

double median(std::vector<double> values) {
    if (values.empty())
        return std::nan("");
    const auto middle = values.begin() + static_cast<long>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

double ratioOfMedians(int rounds, const std::function<double()>& a, const std::function<double()>& b) {
    std::vector<double> as, bs;
    for (int round = 0; round < rounds; ++round) {
        as.push_back(a());
        bs.push_back(b());
    }
    return median(as) / median(bs);
}

/// bench BUILD [--smoke] [WORD...]: prints "NAME VALUE BOUND" for each figure whose name holds one of the words.
int runBenches(int argc, char** argv) {
    buildFolder = argc > 1 ? argv[1] : ".";
    bool smoke = false;
    std::vector<std::string> words;
    for (int i = 2; i < argc; ++i) {
        if (std::strcmp(argv[i], "--smoke") == 0)
            smoke = true;
        else
            words.push_back(argv[i]);
    }
    FILE* figures = keepFiguresApart();
    bool allHold = true;
    for (const MakeBenches makeBenches : allBenches) {
        for (const Bench& bench : makeBenches()) {
            const auto named = [&bench](const std::string& word) { return bench.name.find(word) != std::string::npos; };
            if (!words.empty() && std::none_of(words.begin(), words.end(), named))
                continue;
            const double value = bench.measure(smoke);
            std::fprintf(figures, "%s %.4g %s%g\n", bench.name.c_str(), value,
                         bench.kind == Bench::Bound::AtMost ? "<=" : ">=", bench.limit);
            std::fflush(figures);
            allHold = allHold && (smoke ? !std::isnan(value) : holds(bench, value));
        }
    }
    return allHold ? 0 : 1;
}

} // namespace skyvane

int main(int argc, char** argv) {
    return skyvane::runBenches(argc, argv);
}

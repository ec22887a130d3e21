#pragma once

#include <functional>
#include <string>
#include <vector>

namespace skyvane {

/// One figure that ./bench prints: a ratio to a baseline of the same run, or a count.
struct Bench {
    enum class Bound { AtMost, AtLeast };

    std::string name;
    Bound kind;
    double limit;
    /// Measures; `smoke` asks for the shortest run that still goes through everything. NaN when it couldn't measure.
    std::function<double(bool smoke)> measure;
};

/// Where the build's programs are: handed to ./bench's program as its first argument.
const std::string& benchBuildFolder();

/// All figures, from the files beside this one.
std::vector<Bench> recordBenches();
std::vector<Bench> logBenches();
std::vector<Bench> nmeaBenches();
std::vector<Bench> frameBenches();
std::vector<Bench> startBenches();
std::vector<Bench> areaBenches();
std::vector<Bench> dialogBenches();
std::vector<Bench> chartBenches();
std::vector<Bench> terrainBenches();
std::vector<Bench> labelBenches();
std::vector<Bench> gdl90Benches();
std::vector<Bench> planBenches();
std::vector<Bench> hypertextBenches();
std::vector<Bench> mapBenches();
std::vector<Bench> visionBenches();
std::vector<Bench> sideViewBenches();

/// Seconds of one call.
double secondsOf(const std::function<void()>& work);
double median(std::vector<double> values);
/// Calls a and b in turn, so that a drift of the machine meets both, and gives median(a) / median(b).
double ratioOfMedians(int rounds, const std::function<double()>& a, const std::function<double()>& b);

} // namespace skyvane

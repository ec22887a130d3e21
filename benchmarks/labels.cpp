// The label solver on crowded maps.
#include "Bench.h"
#include "displays/labels/RectangleGradientDescent.h"

#include <algorithm>
#include <cmath>
#include <random>

namespace skyvane {

namespace {

using Solver = RectangleGradientDescent;

constexpr double Degree = 0.017453292519943295;
constexpr double Threshold = 0.01;
constexpr unsigned Rounds = 400;

/// Labels spread over a map that grows with their number: 400 of them fill 1280 by 720 pixels.
void fill(Solver& solver, int count) {
    const double scale = std::sqrt(count / 400.0);
    std::mt19937 random(74);
    std::uniform_real_distribution<double> x(-640.0 * scale, 640.0 * scale), y(-360.0 * scale, 360.0 * scale);
    for (int i = 0; i < count; ++i)
        solver.addRectangle({{x(random), y(random)}, {60.0, 16.0}, 0.0, {12.0, 12.0}, nullptr});
}

double solveSeconds(int count, unsigned rounds) {
    Solver solver({-3840.0, -2160.0, 3840.0, 2160.0});
    fill(solver, count);
    return secondsOf([&] { solver.optimize(rounds, Degree, Threshold, false); });
}

double solve400(bool smoke) {
    std::vector<double> seconds;
    for (int i = 0; i < (smoke ? 1 : 5); ++i)
        seconds.push_back(solveSeconds(400, Rounds));
    return median(seconds);
}

/// Time of a round over n log n, of the larger maps against the smallest: the worst of both.
double growth(bool smoke) {
    const auto ratio = [smoke](int count) {
        const double work = count * std::log2(count) / (400 * std::log2(400));
        const unsigned rounds = smoke ? 2 : 20;
        return ratioOfMedians(
                   smoke ? 1 : 7, [=] { return solveSeconds(count, rounds); },
                   [=] { return solveSeconds(400, rounds); }) /
               work;
    };
    return std::max(ratio(1600), ratio(6400));
}

} // namespace

std::vector<Bench> labelBenches() {
    return {{"labels.400-seconds", Bench::Bound::AtMost, 0.4, solve400},
            {"labels.growth", Bench::Bound::AtMost, 1.3, growth}};
}

} // namespace skyvane

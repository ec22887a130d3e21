#include "displays/visionmath/HorizonLine.h"

#include <array>
#include <cmath>

namespace skyvane {
namespace {

/// From the middle of the panel to its edge, straight across the line.
double reachOf(const HorizonLine& line, const Lens& lens) {
    constexpr double least = 1e-9;
    return std::min(lens.width / 2.0 / std::max(std::abs(line.skyward.X), least),
                    lens.height / 2.0 / std::max(std::abs(line.skyward.Y), least));
}

} // namespace

/// A pixel x, y from the middle looks along right x + up (-y) + forward f: its height above the horizon is linear in
/// x and y.
HorizonLine calcHorizon(const ViewPose& pose, const Lens& lens) {
    constexpr double steepest = 1e-4;
    const HorizonLine::Point across(pose.right.Y, -pose.up.Y);
    const double length = std::hypot(across.X, across.Y);
    const double sky = lens.focalPixels * pose.forward.Y;
    HorizonLine line;
    if (length < steepest)
        line.skyPixels = sky / steepest;
    else {
        line.skyward = across / length;
        line.skyPixels = sky / length;
    }
    return line;
}

bool keepInView(HorizonLine& line, const Lens& lens, double sliverPixels) {
    const double most = std::max(reachOf(line, lens) - sliverPixels, 0.0);
    if (std::abs(line.skyPixels) <= most)
        return false;
    line.skyPixels = std::copysign(most, line.skyPixels);
    return true;
}

std::vector<Lens::Point> sideOf(const HorizonLine& line, const Lens& lens, bool sky) {
    const double w = lens.width, h = lens.height;
    const std::array<Lens::Point, 4> corners = {Lens::Point(0, 0), {w, 0}, {w, h}, {0, h}};
    std::vector<Lens::Point> outline;
    for (size_t i = 0; i < corners.size(); ++i) {
        const Lens::Point a = corners[i], b = corners[(i + 1) % corners.size()];
        const double da = line.distanceOf(a, lens) * (sky ? 1.0 : -1.0);
        const double db = line.distanceOf(b, lens) * (sky ? 1.0 : -1.0);
        if (da >= 0.0)
            outline.push_back(a);
        if ((da > 0.0 && db < 0.0) || (da < 0.0 && db > 0.0))
            outline.push_back(a + (b - a) * (da / (da - db)));
    }
    return outline.size() < 3 ? std::vector<Lens::Point>() : outline;
}

} // namespace skyvane

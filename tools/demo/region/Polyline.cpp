#include "demo/region/Polyline.h"

#include <algorithm>

namespace skyvane::demo {

std::vector<Spot> smoothLine(std::vector<Spot> line, int rounds) {
    for (int round = 0; round < rounds; ++round) {
        Spot before = line.front();
        for (size_t i = 1; i + 1 < line.size(); ++i) {
            const Spot here = line[i];
            line[i] = (before + here * 2.0 + line[i + 1]) * 0.25;
            before = here;
        }
    }
    std::vector<Spot> cut{line.front()};
    for (size_t i = 0; i + 1 < line.size(); ++i) {
        cut.push_back(blend(line[i], line[i + 1], 0.25));
        cut.push_back(blend(line[i], line[i + 1], 0.75));
    }
    cut.push_back(line.back());
    return cut;
}

double distanceToLine(Spot spot, const std::vector<Spot>& line) {
    double least = 1e12;
    for (size_t i = 0; i + 1 < line.size(); ++i) {
        const Spot along = line[i + 1] - line[i];
        const double t = std::clamp(dot(spot - line[i], along) / std::max(dot(along, along), 1e-9), 0.0, 1.0);
        least = std::min(least, distance(spot, line[i] + along * t));
    }
    return least;
}

} // namespace skyvane::demo

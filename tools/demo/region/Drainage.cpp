#include "demo/region/Drainage.h"

#include "demo/region/Noise.h"

#include <algorithm>
#include <functional>
#include <queue>

namespace skyvane::demo {

namespace {

bool isBase(const HeightGrid& coast, int node) {
    return coast[node] <= 0.0 || coast.isEdge(node);
}

void sumAreas(Drainage& drainage) {
    drainage.areas.assign(drainage.receivers.size(), HeightGrid::Spacing * HeightGrid::Spacing);
    for (auto node = drainage.order.rbegin(); node != drainage.order.rend(); ++node) {
        const auto index = static_cast<size_t>(*node);
        const auto receiver = static_cast<size_t>(drainage.receivers[index]);
        if (receiver != index)
            drainage.areas[receiver] += drainage.areas[index];
    }
}

// One step of the balance of uplift and stream power, implicit in time: Braun and Willett, "A very efficient O(n),
// implicit and parallel method to solve the stream power equation", Geomorphology 180-181 (2013).
void wearDown(HeightGrid& heights, const HeightGrid& uplift, const Drainage& drainage) {
    constexpr double step = 1.0;
    constexpr double erosion = 8e-2;
    constexpr double areaPower = 0.45;
    constexpr double steepest = 0.75; // rise over run that rock can hold, in units that end near metres
    for (const int node : drainage.order) {
        const int receiver = drainage.receivers[static_cast<size_t>(node)];
        if (receiver == node)
            continue;
        const double run = distance(heights.spot(node), heights.spot(receiver));
        const double factor = erosion * step * std::pow(drainage.areas[static_cast<size_t>(node)], areaPower) / run;
        const double raised = heights[node] + 40.0 * uplift[node] * step;
        const double worn = (raised + factor * heights[receiver]) / (1.0 + factor);
        heights[node] = std::clamp(worn, heights[receiver] + 1e-3, heights[receiver] + steepest * run);
    }
}

} // namespace

Drainage floodAndDrain(HeightGrid& heights, const HeightGrid& coast) {
    using Entry = std::pair<double, int>;
    std::priority_queue<Entry, std::vector<Entry>, std::greater<>> shore;
    Drainage drainage;
    drainage.receivers.assign(static_cast<size_t>(heights.size()), -1);
    for (int node = 0; node < heights.size(); ++node) {
        if (!isBase(coast, node))
            continue;
        drainage.receivers[static_cast<size_t>(node)] = node;
        shore.emplace(heights[node], node);
    }
    while (!shore.empty()) {
        const int node = shore.top().second;
        shore.pop();
        drainage.order.push_back(node);
        heights.forNeighbours(node, [&](int neighbour, double) {
            int& receiver = drainage.receivers[static_cast<size_t>(neighbour)];
            if (receiver >= 0)
                return;
            receiver = node;
            heights[neighbour] = std::max(heights[neighbour], heights[node] + 1e-3);
            shore.emplace(heights[neighbour], neighbour);
        });
    }
    sumAreas(drainage);
    return drainage;
}

Drainage drainSteepest(const HeightGrid& heights, const HeightGrid& coast) {
    Drainage drainage;
    const auto count = static_cast<size_t>(heights.size());
    drainage.receivers.resize(count);
    std::vector<std::vector<int>> donors(count);
    for (int node = 0; node < heights.size(); ++node) {
        int receiver = node;
        double best = 0.0;
        if (!isBase(coast, node)) {
            heights.forNeighbours(node, [&](int neighbour, double run) {
                const double slope = (heights[node] - heights[neighbour]) / run;
                if (slope > best) {
                    best = slope;
                    receiver = neighbour;
                }
            });
        }
        drainage.receivers[static_cast<size_t>(node)] = receiver;
        if (receiver == node)
            drainage.order.push_back(node);
        else
            donors[static_cast<size_t>(receiver)].push_back(node);
    }
    for (size_t next = 0; next < drainage.order.size(); ++next) {
        const auto& above = donors[static_cast<size_t>(drainage.order[next])];
        drainage.order.insert(drainage.order.end(), above.begin(), above.end());
    }
    sumAreas(drainage);
    return drainage;
}

HeightGrid growMountains(const HeightGrid& coast, const HeightGrid& uplift, uint64_t seed, double summitMetres) {
    constexpr int steps = 90;
    HeightGrid heights;
    const Noise roughness(seed + 31, 6000.0, 5);
    for (int node = 0; node < heights.size(); ++node)
        heights[node] = coast[node] <= 0.0 ? 0.0 : 5.0 + 1e-3 * coast[node] + 4.0 * roughness(heights.spot(node));
    Drainage drainage = floodAndDrain(heights, coast);
    for (int step = 0; step < steps; ++step) {
        wearDown(heights, uplift, drainage);
        drainage = drainSteepest(heights, coast);
    }
    double summit = 1.0;
    for (int node = 0; node < heights.size(); ++node)
        summit = std::max(summit, heights[node]);
    for (int node = 0; node < heights.size(); ++node)
        heights[node] =
            coast[node] <= 0.0 ? std::max(0.04 * coast[node], -400.0) : heights[node] * summitMetres / summit;
    return heights;
}

} // namespace skyvane::demo

#include "demo/region/Masts.h"

#include <algorithm>

namespace skyvane::demo {

namespace {

constexpr double kilometre = 1000.0;

bool isSummit(const Landscape& landscape, int node) {
    constexpr int reach = 5;
    const HeightGrid& grid = landscape.getGrid();
    const Spot middle = grid.spot(node);
    for (int dj = -reach; dj <= reach; ++dj) {
        for (int di = -reach; di <= reach; ++di) {
            const Spot spot = middle + Spot{di * HeightGrid::Spacing, dj * HeightGrid::Spacing};
            if (grid[grid.nearest(spot)] > grid[node])
                return false;
        }
    }
    return true;
}

// The highest summits that stand well apart, the very highest left to the climbers.
std::vector<Spot> mastSummits(const Landscape& landscape) {
    constexpr double lowest = 350.0;
    constexpr double highest = 2100.0;
    constexpr double apart = 9.0 * kilometre;
    constexpr size_t most = 12;
    const HeightGrid& grid = landscape.getGrid();
    std::vector<int> nodes;
    for (int node = 0; node < grid.size(); ++node) {
        if (grid[node] > lowest && grid[node] < highest && isSummit(landscape, node))
            nodes.push_back(node);
    }
    std::stable_sort(nodes.begin(), nodes.end(), [&](int a, int b) { return grid[a] > grid[b]; });
    std::vector<Spot> summits;
    for (const int node : nodes) {
        const auto near = [&](Spot other) { return distance(other, grid.spot(node)) < apart; };
        if (summits.size() < most && std::none_of(summits.begin(), summits.end(), near))
            summits.push_back(grid.spot(node));
    }
    return summits;
}

} // namespace

std::vector<Mast> raiseMasts(const Landscape& landscape, const Sites& sites) {
    constexpr int heights[] = {330, 195, 620, 260, 150, 410};
    std::vector<Mast> masts;
    const auto add = [&](const std::string& name, Spot spot, int heightFeet, bool isGroup) {
        constexpr int litFrom = 190;
        masts.push_back(
            {name + " (fictional)", spot, landscape.height(spot), heightFeet, heightFeet >= litFrom, isGroup});
    };
    const std::vector<Spot> summits = mastSummits(landscape);
    for (size_t i = 0; i < summits.size(); ++i)
        add("Ridge mast " + std::to_string(i + 1), summits[i], heights[i % std::size(heights)], false);
    for (const Town& town : sites.towns) {
        constexpr double largeTown = 900.0;
        if (town.plan->sizeMetres >= largeTown)
            add(std::string(town.plan->name) + " mast", town.middle + Spot{-0.8 * town.plan->sizeMetres, 0.0}, 280,
                false);
    }
    const Spot farm = sites.airport("XSOF").middle() + Spot{-1.6 * kilometre, 2.4 * kilometre};
    for (int i = 0; i < 5; ++i)
        add("Wind farm", farm + Spot{-420.0 * i, 130.0 * (i % 2)}, 440, i == 0);
    return masts;
}

} // namespace skyvane::demo

#include "demo/region/Routes.h"

#include "demo/region/Polyline.h"

#include <algorithm>
#include <functional>
#include <map>
#include <queue>

namespace skyvane::demo {

namespace {

struct RoadPlan {
    const char* name;
    std::vector<const char*> towns;
};

const std::vector<RoadPlan> roadPlans = {
    {"A1 (fictional)", {"Port Skyvane", "Sandmere", "Northcape"}},
    {"A2 (fictional)", {"Port Skyvane", "Ferry", "Rosk", "Westhaven", "Calder Bay", "Northcape"}},
    {"A3 (fictional)", {"Port Skyvane", "Thornmoor", "Corrie", "Rosk"}},
    {"A4 (fictional)", {"Sandmere", "Greylake", "Westhaven"}},
    {"A5 (fictional)", {"Port Skyvane", "Eastmere", "Sandmere"}}};
constexpr const char* railwayTowns[] = {"Port Skyvane", "Thornmoor", "Sandmere", "Northcape", "Calder Bay"};
constexpr const char* railwayName = "Skyvane Railway (fictional)";

using Link = std::pair<int, int>; ///< Two neighbours of the grid, the smaller one first.

Link makeLink(int a, int b) {
    return {std::min(a, b), std::max(a, b)};
}

/// Ways on the grid of the landscape; those that are there already are cheaper to use again.
class WayFinder {
public:
    WayFinder(const Landscape& landscape, const RouteRules& rules)
        : landscape_(landscape), grid_(landscape.getGrid()), rules_(rules),
          penalties_(static_cast<size_t>(grid_.size())) {
        for (int node = 0; node < grid_.size(); ++node)
            penalties_[static_cast<size_t>(node)] = penalty(grid_.spot(node));
    }

    /// What runs along an older way keeps its name.
    void connect(const char* name, Spot from, Spot to) {
        const std::vector<int> way = cheapest(grid_.nearest(from), grid_.nearest(to));
        for (size_t i = 0; i + 1 < way.size(); ++i)
            links_.emplace(makeLink(way[i], way[i + 1]), name);
    }

    /// The network as lines between its junctions and ends; each has one name.
    std::vector<Route> routes() const {
        std::map<int, std::vector<int>> neighbours;
        for (const auto& [link, name] : links_) {
            neighbours[link.first].push_back(link.second);
            neighbours[link.second].push_back(link.first);
        }
        std::map<Link, const char*> left = links_;
        std::vector<Route> routes;
        const auto follow = [&](int from, int next) {
            const auto first = left.find(makeLink(from, next));
            if (first == left.end())
                return;
            const char* name = first->second;
            std::vector<Spot> line{grid_.spot(from)};
            for (auto link = first; link != left.end() && link->second == name;
                 link = left.find(makeLink(from, next))) {
                left.erase(link);
                line.push_back(grid_.spot(next));
                const std::vector<int>& ways = neighbours[next];
                if (ways.size() != 2)
                    break;
                const int beyond = ways[0] == from ? ways[1] : ways[0];
                from = next;
                next = beyond;
            }
            routes.push_back({name, smoothLine(std::move(line), 3)});
        };
        for (const auto& [node, ways] : neighbours) {
            for (const int way : ways) {
                if (ways.size() != 2)
                    follow(node, way);
            }
        }
        while (!left.empty()) // rings, and where the name changes
            follow(left.begin()->first.first, left.begin()->first.second);
        return routes;
    }

private:
    double penalty(Spot spot) const {
        if (landscape_.coast(spot) < 120.0 || landscape_.getWaterways().lakeDepth(spot) > -100.0)
            return 1e4;
        if (landscape_.distanceToPads(spot) < 150.0)
            return 60.0;
        return landscape_.coast(spot) < 400.0 ? 1.5 : 1.0;
    }

    double cost(int from, int to, double run) const {
        const double slope = std::fabs(grid_[to] - grid_[from]) / run;
        const double excess = std::max(0.0, slope - rules_.steepest) / rules_.steepest;
        const double climb = 1.0 + rules_.slopeCost * slope + 8.0 * excess * excess;
        const double old = links_.count(makeLink(from, to)) > 0 ? 0.35 : 1.0;
        return run * climb * old * penalties_[static_cast<size_t>(to)];
    }

    std::vector<int> cheapest(int from, int to) const {
        using Entry = std::pair<double, int>;
        std::vector<double> costs(static_cast<size_t>(grid_.size()), 1e18);
        std::vector<int> before(static_cast<size_t>(grid_.size()), -1);
        std::priority_queue<Entry, std::vector<Entry>, std::greater<>> open;
        costs[static_cast<size_t>(from)] = 0.0;
        open.emplace(0.0, from);
        while (!open.empty() && open.top().second != to) {
            const auto [sum, node] = open.top();
            open.pop();
            if (sum > costs[static_cast<size_t>(node)])
                continue;
            grid_.forNeighbours(node, [&, here = node, soFar = sum](int neighbour, double run) {
                const double total = soFar + cost(here, neighbour, run);
                if (total >= costs[static_cast<size_t>(neighbour)])
                    return;
                costs[static_cast<size_t>(neighbour)] = total;
                before[static_cast<size_t>(neighbour)] = here;
                open.emplace(total, neighbour);
            });
        }
        std::vector<int> way;
        for (int node = to; node >= 0; node = before[static_cast<size_t>(node)])
            way.push_back(node);
        return way;
    }

    const Landscape& landscape_;
    const HeightGrid& grid_;
    RouteRules rules_;
    std::vector<double> penalties_;
    std::map<Link, const char*> links_; ///< And their names.
};

// Beside the runway's middle, where the apron is.
Spot gate(const Airport& airport) {
    const Spot line = airport.to - airport.from;
    return airport.middle() + rightOf(line * (1.0 / length(line))) * 600.0;
}

} // namespace

std::vector<Route> buildRoads(const Landscape& landscape, const Sites& sites) {
    WayFinder finder(landscape, {12.0, 0.09});
    for (const RoadPlan& plan : roadPlans) {
        for (size_t i = 0; i + 1 < plan.towns.size(); ++i)
            finder.connect(plan.name, sites.town(plan.towns[i]).middle, sites.town(plan.towns[i + 1]).middle);
    }
    for (const Airport& airport : sites.airports) {
        if (airport.plan->site == AirportPlan::Site::Runway)
            finder.connect("Airport road (fictional)", gate(airport), sites.town(airport.plan->town).middle);
    }
    return finder.routes();
}

std::vector<Route> buildRailway(const Landscape& landscape, const Sites& sites) {
    WayFinder finder(landscape, {60.0, 0.025});
    for (size_t i = 0; i + 1 < std::size(railwayTowns); ++i) {
        const Spot aside{350.0, -350.0}; // beside the towns' middles, where the roads meet
        finder.connect(railwayName, sites.town(railwayTowns[i]).middle + aside,
                       sites.town(railwayTowns[i + 1]).middle + aside);
    }
    return finder.routes();
}

} // namespace skyvane::demo

#include "demo/region/Waterways.h"

#include "demo/region/Polyline.h"

#include <algorithm>

namespace skyvane::demo {

namespace {

constexpr double leastArea = 20e6;
constexpr double bucketMetres = 1000.0;
constexpr double farthestReach = 1600.0;
constexpr int bucketColumns = static_cast<int>(RegionPlane::Width / bucketMetres) + 1;
constexpr int bucketRows = static_cast<int>(RegionPlane::Height / bucketMetres) + 1;

int bucketOf(double metres, int count) {
    return std::clamp(static_cast<int>(metres / bucketMetres), 0, count - 1);
}

// For each node the donor that brings most water, -1 without a river above.
std::vector<int> mainDonors(const Drainage& drainage) {
    std::vector<int> donors(drainage.receivers.size(), -1);
    for (const int node : drainage.order) {
        const auto receiver = static_cast<size_t>(drainage.receivers[static_cast<size_t>(node)]);
        if (static_cast<int>(receiver) == node || drainage.areas[static_cast<size_t>(node)] < leastArea)
            continue;
        int& best = donors[receiver];
        if (best < 0 || drainage.areas[static_cast<size_t>(node)] > drainage.areas[static_cast<size_t>(best)])
            best = node;
    }
    return donors;
}

// The node's last place on land when it flows into the sea.
Spot mouth(const HeightGrid& coast, Spot land, Spot sea) {
    for (int i = 0; i < 30; ++i) {
        const Spot middle = blend(land, sea, 0.5);
        (coast.linear(middle) > 0.0 ? land : sea) = middle;
    }
    return land;
}

} // namespace

Waterways::Waterways(const Drainage& drainage, const HeightGrid& coast, const Ground& ground) {
    traceRivers(drainage, coast, ground);
    makeLake();
    endTributariesAtLake();
    indexPieces();
}

void Waterways::traceRivers(const Drainage& drainage, const HeightGrid& coast, const Ground& ground) {
    const std::vector<int> donors = mainDonors(drainage);
    std::vector<std::pair<int, Spot>> ends; // a river's lowest node, and the place where it ends
    for (const int node : drainage.order) {
        const auto index = static_cast<size_t>(node);
        const int receiver = drainage.receivers[index];
        if (receiver == node || drainage.areas[index] < leastArea)
            continue;
        const bool entersSea = drainage.receivers[static_cast<size_t>(receiver)] == receiver;
        if (!entersSea && donors[static_cast<size_t>(receiver)] == node)
            continue;
        Spot end = coast.spot(receiver);
        double endSurface = 0.0;
        if (entersSea) {
            end = mouth(coast, coast.spot(node), end);
        } else {
            double least = farthestReach;
            for (const River& river : rivers_) {
                for (const RiverPoint& point : river.points) {
                    if (distance(point.spot, coast.spot(receiver)) >= least)
                        continue;
                    least = distance(point.spot, coast.spot(receiver));
                    end = point.spot;
                    endSurface = point.surfaceMetres;
                }
            }
        }
        std::vector<Spot> line{end};
        for (int up = node; up >= 0; up = donors[static_cast<size_t>(up)])
            line.push_back(coast.spot(up));
        if (line.size() < 8)
            continue;
        std::reverse(line.begin(), line.end());
        line = smoothLine(line, 4);

        River river;
        river.mouthArea = static_cast<size_t>(drainage.areas[index]);
        double surface = 1e9;
        for (size_t i = 0; i < line.size(); ++i) {
            const double share = static_cast<double>(i) / static_cast<double>(line.size() - 1);
            surface = std::max(endSurface, std::min(surface, ground(line[i]) - 2.0));
            const double area = leastArea + share * (drainage.areas[index] - leastArea);
            const double halfWidth = 2.0 + 0.0012 * std::sqrt(area);
            river.points.push_back({line[i], surface, halfWidth, 260.0 + 0.02 * std::sqrt(area)});
        }
        river.points.back().surfaceMetres = endSurface;
        rivers_.push_back(std::move(river));
    }
}

// The lake lies where a large river falls least over its length, among mountains.
void Waterways::makeLake() {
    constexpr double lakeLength = 5200.0;
    constexpr double widest = 620.0;
    double best = 1e9;
    for (size_t r = 0; r < rivers_.size(); ++r) {
        const auto& points = rivers_[r].points;
        size_t to = 0;
        double run = 0.0;
        for (size_t from = 0; from < points.size(); ++from) {
            while (to + 1 < points.size() && run < lakeLength) {
                run += distance(points[to].spot, points[to + 1].spot);
                ++to;
            }
            const double fall = points[from].surfaceMetres - points[to].surfaceMetres;
            const double level = points[to].surfaceMetres;
            if (run >= lakeLength && level > 250.0 && level < 700.0 && fall < best) {
                best = fall;
                lakeRiver_ = r;
                lakeFrom_ = from;
                lakeTo_ = to;
            }
            if (from + 1 < points.size())
                run -= distance(points[from].spot, points[from + 1].spot);
        }
    }
    if (best > 1e8)
        return;
    auto& points = rivers_[lakeRiver_].points;
    lakeLevel_ = points[lakeTo_].surfaceMetres;
    lakeMiddle_ = points[(lakeFrom_ + lakeTo_) / 2].spot;
    const Spot along = points[lakeTo_].spot - points[lakeFrom_].spot;
    lakeDirection_ = along * (1.0 / length(along));
    for (size_t i = lakeFrom_; i <= lakeTo_; ++i) {
        const double t = static_cast<double>(i - lakeFrom_) / static_cast<double>(lakeTo_ - lakeFrom_);
        points[i].surfaceMetres = lakeLevel_;
        points[i].waterHalfWidth +=
            widest * std::pow(std::sin(3.14159265 * t), 0.7) * (0.85 + 0.15 * std::sin(17.0 * t));
        points[i].bankWidth = 700.0;
    }
}

// What flows into the lake ends at its shore.
void Waterways::endTributariesAtLake() {
    for (size_t r = 0; r < rivers_.size(); ++r) {
        auto& points = rivers_[r].points;
        if (r == lakeRiver_)
            continue;
        const auto inLake = std::find_if(points.begin(), points.end(),
                                         [this](const RiverPoint& point) { return lakeDepth(point.spot) > 0.0; });
        if (inLake == points.end())
            continue;
        const auto last = std::max(inLake, points.begin() + 1);
        last->surfaceMetres = lakeLevel_;
        points.erase(last + 1, points.end());
    }
}

void Waterways::indexPieces() {
    buckets_.resize(static_cast<size_t>(bucketColumns * bucketRows));
    for (const River& river : rivers_) {
        for (size_t i = 0; i + 1 < river.points.size(); ++i) {
            const Piece piece{&river.points[i], &river.points[i + 1]};
            const Spot a = piece.from->spot;
            const Spot b = piece.to->spot;
            const int east = bucketOf(std::max(a.x, b.x) + farthestReach, bucketColumns);
            const int north = bucketOf(std::max(a.y, b.y) + farthestReach, bucketRows);
            for (int row = bucketOf(std::min(a.y, b.y) - farthestReach, bucketRows); row <= north; ++row) {
                for (int column = bucketOf(std::min(a.x, b.x) - farthestReach, bucketColumns); column <= east; ++column)
                    buckets_[static_cast<size_t>(row * bucketColumns + column)].push_back(piece);
            }
        }
    }
}

const std::vector<Waterways::Piece>& Waterways::piecesNear(Spot spot) const {
    const int bucket = bucketOf(spot.y, bucketRows) * bucketColumns + bucketOf(spot.x, bucketColumns);
    return buckets_[static_cast<size_t>(bucket)];
}

Waterways::Nearest Waterways::nearestOn(const Piece& piece, Spot spot) {
    const RiverPoint& a = *piece.from;
    const RiverPoint& b = *piece.to;
    const Spot line = b.spot - a.spot;
    const double t = std::clamp(dot(spot - a.spot, line) / std::max(dot(line, line), 1e-9), 0.0, 1.0);
    const auto mix = [t](double first, double second) { return first + (second - first) * t; };
    const RiverPoint point{a.spot + line * t, mix(a.surfaceMetres, b.surfaceMetres),
                           mix(a.waterHalfWidth, b.waterHalfWidth), mix(a.bankWidth, b.bankWidth)};
    return {distance(point.spot, spot), point};
}

double Waterways::lakeDepth(Spot spot) const {
    double depth = -farthestReach;
    if (rivers_.empty())
        return depth;
    const auto& points = rivers_[lakeRiver_].points;
    for (size_t i = lakeFrom_; i < lakeTo_; ++i) {
        const Nearest nearest = nearestOn({&points[i], &points[i + 1]}, spot);
        depth = std::max(depth, nearest.point.waterHalfWidth - nearest.distance);
    }
    return depth;
}

double Waterways::distanceToRiver(Spot spot, double reach) const {
    double least = std::min(reach, farthestReach);
    for (const Piece& piece : piecesNear(spot))
        least = std::min(least, nearestOn(piece, spot).distance);
    return least;
}

// The surface of the nearest water, fading into the ground over its bank. Where two are near, each counts by how near
// it is, so that their banks meet without a step.
double Waterways::shape(Spot spot, double groundMetres) const {
    double weights = 0.0;
    double surfaces = 0.0;
    double fade = 1.0;
    for (const Piece& piece : piecesNear(spot)) {
        const Nearest nearest = nearestOn(piece, spot);
        const double away = (nearest.distance - nearest.point.waterHalfWidth) / nearest.point.bankWidth;
        if (away >= 1.0)
            continue;
        const double closeness = 1.0 / std::pow(std::max(away, 1e-7), 4.0) - 1.0;
        weights += closeness;
        surfaces += closeness * nearest.point.surfaceMetres;
        fade = std::min(fade, smoothStep(0.0, 1.0, away));
    }
    if (weights <= 0.0)
        return groundMetres;
    const double surface = surfaces / weights;
    return surface + (groundMetres - surface) * fade;
}

} // namespace skyvane::demo

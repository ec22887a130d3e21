#pragma once

#include "demo/region/Drainage.h"

#include <functional>

namespace skyvane::demo {

/// A place on a river: its surface, how far level water reaches to both sides, and how far the banks.
struct RiverPoint {
    Spot spot;
    double surfaceMetres;
    double waterHalfWidth;
    double bankWidth;
};

/// From the spring down to the sea or another river; the surface never rises on the way.
struct River {
    std::vector<RiverPoint> points;
    size_t mouthArea; ///< Square metres that it drains.
};

/// The rivers of a landscape and the lakes in them, and how they shape the ground.
class Waterways {
public:
    using Ground = std::function<double(Spot)>;

    /// Traces every river that drains more than 20 square kilometres, and dams the flattest reach of one to a lake.
    Waterways(const Drainage& drainage, const HeightGrid& coast, const Ground& ground);

    const std::vector<River>& getRivers() const { return rivers_; }
    /// Where the lake is: positive on it, in metres from its shore; negative elsewhere.
    double lakeDepth(Spot spot) const;
    Spot getLakeMiddle() const { return lakeMiddle_; }
    /// The bearing of the lake's long side as a direction of length 1.
    Spot getLakeDirection() const { return lakeDirection_; }
    double getLakeLevel() const { return lakeLevel_; }
    /// The distance to the nearest river in metres; `reach` when there is none that near.
    double distanceToRiver(Spot spot, double reach) const;
    /// The ground with the river beds, banks and lakes cut into it.
    double shape(Spot spot, double groundMetres) const;

private:
    struct Piece {
        const RiverPoint* from;
        const RiverPoint* to;
    };
    struct Nearest {
        double distance;
        RiverPoint point;
    };

    void traceRivers(const Drainage& drainage, const HeightGrid& coast, const Ground& ground);
    void makeLake();
    void endTributariesAtLake();
    void indexPieces();
    const std::vector<Piece>& piecesNear(Spot spot) const;
    static Nearest nearestOn(const Piece& piece, Spot spot);

    std::vector<River> rivers_;
    size_t lakeRiver_ = 0;
    size_t lakeFrom_ = 0;
    size_t lakeTo_ = 0;
    Spot lakeMiddle_;
    Spot lakeDirection_;
    double lakeLevel_ = 0.0;
    std::vector<std::vector<Piece>> buckets_;
};

} // namespace skyvane::demo

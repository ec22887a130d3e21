#include "demo/region/Landscape.h"

#include <algorithm>

namespace skyvane::demo {

namespace {

// How a place lies to a pad: beyond its level ground in metres, and the height of its plane there.
struct OnPad {
    double away;
    double metres;
};

OnPad relateToPad(const Pad& pad, Spot spot) {
    const Spot line = pad.to - pad.from;
    const double run = length(line);
    const Spot direction = line * (1.0 / run);
    const double along = dot(spot - pad.from, direction);
    const double beyond = std::max({0.0, -along - pad.halfWidth, along - run - pad.halfWidth});
    const double aside = std::max(0.0, std::fabs(dot(spot - pad.from, rightOf(direction))) - pad.halfWidth);
    const double t = std::clamp(along / run, 0.0, 1.0);
    return {std::hypot(beyond, aside), pad.fromMetres + (pad.toMetres - pad.fromMetres) * t};
}

} // namespace

Landscape::Landscape(uint64_t seed) : shape_(seed), rocks_(seed + 47, 700.0, 4) {
    HeightGrid coast;
    HeightGrid uplift;
    for (int node = 0; node < coast.size(); ++node) {
        coast[node] = shape_.coast(coast.spot(node));
        uplift[node] = shape_.uplift(coast.spot(node));
    }
    grid_ = growMountains(coast, uplift, seed, SummitMetres);
    const Drainage drainage = drainSteepest(grid_, coast);
    waterways_ = std::make_unique<Waterways>(drainage, coast, [this](Spot spot) { return dryGround(spot); });
    HeightGrid carved = grid_;
    for (int node = 0; node < carved.size(); ++node)
        carved[node] = height(carved.spot(node));
    grid_ = carved;
}

// The grown mountains with rocks on the slopes, running out to the coastline.
double Landscape::dryGround(Spot spot) const {
    constexpr double beachMetres = 450.0;
    const double coastDistance = shape_.coast(spot);
    if (coastDistance <= 0.0)
        return std::max(0.04 * coastDistance, -400.0) - 0.5;
    const double smooth = std::max(grid_.smooth(spot), 1.0);
    const double rough = std::min(0.03 * smooth, 26.0) * rocks_(spot);
    return 0.5 + (smooth + rough) * smoothStep(0.0, beachMetres, coastDistance);
}

// A pad fades out over its blend, and before it would reach a river or the sea.
double Landscape::levelForPads(Spot spot, double metres) const {
    constexpr double blendMetres = 700.0;
    for (const Pad& pad : pads_) {
        const OnPad place = relateToPad(pad, spot);
        if (place.away >= blendMetres)
            continue;
        const double river = waterways_->distanceToRiver(spot, 250.0);
        const double kept = std::max({smoothStep(0.0, blendMetres, place.away), 1.0 - smoothStep(20.0, 200.0, river),
                                      1.0 - smoothStep(0.0, 140.0, shape_.coast(spot))});
        metres = place.metres + (metres - place.metres) * kept;
    }
    return metres;
}

double Landscape::height(Spot spot) const {
    const double metres = dryGround(spot);
    if (metres <= 0.0)
        return metres;
    return levelForPads(spot, std::max(0.2, waterways_->shape(spot, metres)));
}

double Landscape::distanceToPads(Spot spot) const {
    double least = 1e9;
    for (const Pad& pad : pads_)
        least = std::min(least, relateToPad(pad, spot).away);
    return least;
}

} // namespace skyvane::demo

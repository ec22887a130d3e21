#pragma once

#include "demo/region/Noise.h"

namespace skyvane::demo {

/// Where land is and how fast it rises: what the landscape is grown from.
class IslandShape {
public:
    explicit IslandShape(uint64_t seed);

    /// About the distance to the coast in metres: positive on land, negative at sea, 0 on the coastline.
    double coast(Spot spot) const;
    /// How fast the ground rises, 0 to about 1: high along the ranges, low in the plains.
    double uplift(Spot spot) const;

private:
    Noise coastNoise_;
    Noise upliftNoise_;
};

} // namespace skyvane::demo

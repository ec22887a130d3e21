#pragma once

#include "demo/region/Spot.h"

#include <cstdint>

namespace skyvane::demo {

/// A number from a seed and two indices, evenly spread; the same on every machine.
uint64_t mixBits(uint64_t seed, int64_t i, int64_t j);
/// The same as 0 up to but not including 1.
double mixUnit(uint64_t seed, int64_t i, int64_t j);

/// Smooth noise of the plane, about -1 to 1, that repeats nowhere near.
class Noise {
public:
    /// `wavelength` in metres is that of the first octave; each next one is half as long and half as high.
    Noise(uint64_t seed, double wavelength, int octaves) : seed_(seed), wavelength_(wavelength), octaves_(octaves) {}

    double operator()(Spot spot) const;

private:
    uint64_t seed_;
    double wavelength_;
    int octaves_;
};

} // namespace skyvane::demo

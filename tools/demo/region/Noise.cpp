#include "demo/region/Noise.h"

namespace skyvane::demo {

namespace {

double fade(double t) {
    return t * t * t * (t * (t * 6.0 - 15.0) + 10.0);
}

// The slope of one corner of the lattice towards a place; slopes are vectors of eight directions.
double cornerSlope(uint64_t seed, int64_t i, int64_t j, double dx, double dy) {
    static constexpr double diagonal = 0.7071067811865476;
    static constexpr double directions[8][2] = {{1, 0},  {diagonal, diagonal},   {0, 1},  {-diagonal, diagonal},
                                                {-1, 0}, {-diagonal, -diagonal}, {0, -1}, {diagonal, -diagonal}};
    const double* direction = directions[mixBits(seed, i, j) >> 61];
    return direction[0] * dx + direction[1] * dy;
}

double gradientNoise(uint64_t seed, double x, double y) {
    const double cellX = std::floor(x);
    const double cellY = std::floor(y);
    const auto i = static_cast<int64_t>(cellX);
    const auto j = static_cast<int64_t>(cellY);
    const double dx = x - cellX;
    const double dy = y - cellY;
    const double u = fade(dx);
    const double south = (1.0 - u) * cornerSlope(seed, i, j, dx, dy) + u * cornerSlope(seed, i + 1, j, dx - 1.0, dy);
    const double north =
        (1.0 - u) * cornerSlope(seed, i, j + 1, dx, dy - 1.0) + u * cornerSlope(seed, i + 1, j + 1, dx - 1.0, dy - 1.0);
    const double v = fade(dy);
    return 1.4 * ((1.0 - v) * south + v * north);
}

} // namespace

uint64_t mixBits(uint64_t seed, int64_t i, int64_t j) {
    uint64_t bits = seed + 0x9e3779b97f4a7c15u * (static_cast<uint64_t>(i) + 1u) +
                    0xc2b2ae3d27d4eb4fu * (static_cast<uint64_t>(j) + 1u);
    bits = (bits ^ (bits >> 30)) * 0xbf58476d1ce4e5b9u;
    bits = (bits ^ (bits >> 27)) * 0x94d049bb133111ebu;
    return bits ^ (bits >> 31);
}

double mixUnit(uint64_t seed, int64_t i, int64_t j) {
    return static_cast<double>(mixBits(seed, i, j) >> 11) * 0x1p-53;
}

double Noise::operator()(Spot spot) const {
    double sum = 0.0;
    double weight = 1.0;
    double frequency = 1.0 / wavelength_;
    for (int octave = 0; octave < octaves_; ++octave) {
        const uint64_t seed = seed_ + static_cast<uint64_t>(octave) * 7919u;
        sum += weight * gradientNoise(seed, spot.x * frequency, spot.y * frequency);
        weight *= 0.5;
        frequency *= 2.0;
    }
    return sum;
}

} // namespace skyvane::demo

#include "core/geometry/MipmapChain.h"

#include <algorithm>

namespace skyvane {

namespace {

uint32_t meanOf(const uint32_t (&four)[4]) {
    if (four[0] == four[1] && four[0] == four[2] && four[0] == four[3])
        return four[0]; // most of a dial is plain
    uint32_t alpha = 0, red = 0, green = 0, blue = 0;
    for (const uint32_t pixel : four) {
        const uint32_t a = pixel >> 24;
        alpha += a;
        red += a * (pixel >> 16 & 0xff);
        green += a * (pixel >> 8 & 0xff);
        blue += a * (pixel & 0xff);
    }
    if (alpha == 0)
        return four[0] & 0xffffff; // unseen: any colour will do, a neighbour's is the best
    const uint32_t half = alpha / 2;
    return (alpha + 2) / 4 << 24 | (red + half) / alpha << 16 | (green + half) / alpha << 8 | (blue + half) / alpha;
}

size_t chainLength(unsigned width, unsigned height) {
    size_t length = 0;
    while (width > 1 || height > 1) {
        width = std::max(width / 2, 1u);
        height = std::max(height / 2, 1u);
        length += static_cast<size_t>(width) * height;
    }
    return length;
}

void halve(const uint32_t* from, unsigned width, unsigned height, uint32_t* to) {
    const unsigned across = width > 1 ? 1 : 0;
    const size_t down = height > 1 ? width : 0;
    for (unsigned y = 0; y < std::max(height / 2, 1u); ++y) {
        const uint32_t* row = from + 2 * y * down;
        for (unsigned x = 0; x < std::max(width / 2, 1u); ++x) {
            const uint32_t* at = row + 2 * x * across;
            *to++ = meanOf({at[0], at[across], at[down], at[down + across]});
        }
    }
}

} // namespace

std::vector<uint32_t> makeMipmapChain(const uint32_t* pixels, unsigned width, unsigned height) {
    if (!pixels || width == 0 || height == 0)
        return {};
    std::vector<uint32_t> chain(chainLength(width, height));
    uint32_t* to = chain.data();
    while (width > 1 || height > 1) {
        halve(pixels, width, height, to);
        width = std::max(width / 2, 1u);
        height = std::max(height / 2, 1u);
        pixels = to;
        to += static_cast<size_t>(width) * height;
    }
    return chain;
}

} // namespace skyvane

#pragma once

#include <cstdint>
#include <vector>

namespace skyvane {

/// The smaller copies of a picture, one behind the other: each half the size of the one before, rounded down, to 1 by
/// 1; the picture itself isn't among them. Pixels are 0xAARRGGBB. A pixel is the mean of four, colours weighted by
/// alpha; the last row or column of an odd size is left out. Empty for a picture of 1 by 1 or without pixels.
std::vector<uint32_t> makeMipmapChain(const uint32_t* pixels, unsigned width, unsigned height);

} // namespace skyvane

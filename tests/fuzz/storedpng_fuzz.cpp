#include "core/files/StoredPng.h"

#include <cstddef>
#include <cstdint>
#include <vector>

/// Any bytes as a stored picture.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const skyvane::StoredPng picture(data, size);
    std::vector<uint32_t> pixels(size_t{picture.getWidth()} * picture.getHeight());
    if (picture.isStored())
        picture.copyPixels(pixels.data());
    return 0;
}

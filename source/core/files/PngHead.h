#pragma once

#include "core/bytes/ByteReader.h"

#include <optional>

namespace skyvane {

/// What a PNG file says of itself, asked before it is unpacked: a small file can claim a huge picture.
struct PngHead {
    static constexpr size_t Bytes = 33;

    uint32_t width = 0, height = 0;
    uint64_t form = 0; ///< A byte each, from the highest: depth, colours, compression, filter, interlace.
};

/// Reads the head and stands behind it. Nothing for other bytes, and for a picture without pixels.
std::optional<PngHead> readPngHead(ByteReader& in);

} // namespace skyvane

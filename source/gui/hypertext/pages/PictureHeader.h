#pragma once

#include "core/geometry/EngineMath.h"

#include <string>

namespace skyvane {

constexpr unsigned longestPictureEdge = 4096;
constexpr size_t largestPictureFile = 8 << 20;

/// The size that the head of a PNG file tells; empty for other bytes, and for a picture with an edge beyond
/// longestPictureEdge. Asked before a picture is unpacked, since a small file can claim a huge one.
irr::core::dimension2d<irr::u32> readPictureSize(const std::string& file);

} // namespace skyvane

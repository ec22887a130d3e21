#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace skyvane::demo {

class Landscape;

/// The heights of the islands' degree as an elevation tile, in metres: 0 at sea and on no land. Takes some seconds.
std::vector<int16_t> sampleTile(const Landscape& landscape);

/// Writes that tile, the sea of the eight degrees around it and the list of them into a folder Terrain of the program,
/// with a slash at its end, and marks the folder: the program computes the coarser levels at its next start. False when
/// the disk refuses.
bool writeTerrain(const Landscape& landscape, const std::string& folder);

} // namespace skyvane::demo

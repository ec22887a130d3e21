#pragma once

#include <cstdint>
#include <string>

namespace skyvane {

// Elevation tiles, <id>.terr: the uncompressed size as a 32-bit integer, little-endian as all of it, then one zlib
// stream of 1201 rows of 1201 signed 16-bit heights in metres, the north row first, each row from west to east. The
// first and last rows and columns lie on the edges of the tile's cell.

constexpr int TileSide = 1201;
/// Steps from one edge to the other.
constexpr int TileSteps = TileSide - 1;
constexpr int TileSamples = TileSide * TileSide;
constexpr int TileBytes = TileSamples * 2;
/// A sample without data.
constexpr int16_t NoHeight = -32768;

constexpr const char* TerrainTileEnding = ".terr";

enum class TileLoad { Loaded, Missing, Corrupted };

/// "<folder><id>.terr"; the folder ends in a slash.
std::string getTilePath(const std::string& folder, int id);

/// Reads a tile into TileSamples heights, which hold anything unless it was loaded. A corrupted one is named in the
/// log: not exactly TileBytes, or not to be inflated to them.
TileLoad loadTile(const std::string& path, int16_t* heights);

/// Writes a tile at zlib's level 9, in place of an old one as a whole or not at all. False when the disk refuses.
bool saveTile(const std::string& path, const int16_t* heights);

} // namespace skyvane

#pragma once

#include "core/bytes/ByteReader.h"
#include "terrain/TerrainFixture.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <zlib.h>

namespace skyvane {

/// The only file of a zipped SRTM tile of 1201 rows, big-endian there; empty when it can't be had.
inline Tile readSrtmZip(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    const std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    ByteReader head(bytes.data(), bytes.size());
    head.take(26);
    const size_t names = head.little<uint16_t>();
    head.take(names + head.little<uint16_t>());
    std::vector<uint8_t> raw(TileBytes);
    z_stream stream = {};
    inflateInit2(&stream, -MAX_WBITS);
    stream.next_in = const_cast<uint8_t*>(reinterpret_cast<const uint8_t*>(bytes.data())) + 30 + names;
    stream.avail_in = static_cast<uInt>(head.remaining());
    stream.next_out = raw.data();
    stream.avail_out = TileBytes;
    const bool whole = !head.fail() && inflate(&stream, Z_FINISH) == Z_STREAM_END && stream.avail_out == 0;
    inflateEnd(&stream);
    ByteReader samples(raw.data(), raw.size());
    Tile tile;
    while (whole && samples.remaining())
        tile.push_back(samples.big<int16_t>());
    return tile;
}

/// The folder of real data with a trailing slash; empty when there is none.
inline std::string realDataFolder() {
    const char* folder = std::getenv("SKYVANE_DATA");
    return folder ? std::string(folder) + "/" : std::string();
}

} // namespace skyvane

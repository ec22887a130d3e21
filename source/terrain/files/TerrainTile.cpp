#include "terrain/files/TerrainTile.h"

#include "core/files/CompressedBlock.h"
#include "core/files/Paths.h"
#include "core/files/SafeFile.h"
#include "core/log/Logger.h"

#include <fstream>

namespace skyvane {

static_assert(__BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__, "heights are used as they lie in the file");

std::string getTilePath(const std::string& folder, int id) {
    return folder + std::to_string(id) + TerrainTileEnding;
}

TileLoad loadTile(const std::string& path, int16_t* heights) {
    if (!fileExist(path)) // nor a folder or a pipe, which would wait for its other end
        return TileLoad::Missing;
    std::ifstream in;
    in.rdbuf()->pubsetbuf(nullptr, 0); // blocks come whole
    in.open(path, std::ios::binary);
    if (!in)
        return TileLoad::Missing;
    int length = TileBytes;
    if (compressedFileToBuffer(in, length, reinterpret_cast<unsigned char*>(heights)) && length == TileBytes)
        return TileLoad::Loaded;
    logText("Corrupted file: " + path + "\n");
    return TileLoad::Corrupted;
}

bool saveTile(const std::string& path, const int16_t* heights) {
    return saveFileSafely(path, [heights](std::ostream& out) {
               if (compressBufferToFile(out, reinterpret_cast<const unsigned char*>(heights), TileBytes) != 0)
                   out.setstate(std::ios::badbit);
           }) == 0;
}

} // namespace skyvane

#include "core/log/Logger.h"
#include "terrain/files/TerrainIndexFile.h"
#include "terrain/files/TerrainTile.h"
#include "terrain/tree/TerrainTreeShape.h"

#include <cstdlib>
#include <iostream>
#include <sys/mman.h>
#include <unistd.h>
#include <vector>

using namespace skyvane;

// The bytes as a tile and as a list of tiles: the tile fills its array exactly or not at all, and a list names nodes.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const int file = memfd_create("terrain", MFD_CLOEXEC);
    static std::vector<int16_t> heights(TileSamples);
    std::cout.setstate(std::ios::badbit); // the log
    if (ftruncate(file, 0) != 0 || pwrite(file, data, size, 0) != static_cast<ssize_t>(size))
        return 0;
    const std::string path = "/proc/self/fd/" + std::to_string(file);
    loadTile(path, heights.data());
    std::string name, closing;
    for (const int id : parseTIFile(path, &name, &closing))
        if (id < 0 || id >= TerrainNodeCount)
            std::abort();
    if (name.find('\n') != std::string::npos || closing.find('\n') != std::string::npos)
        std::abort();
    return 0;
}

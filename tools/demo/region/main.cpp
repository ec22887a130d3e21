#include "core/files/Paths.h"
#include "core/text/StrictNumber.h"
#include "demo/region/Landscape.h"
#include "demo/region/RegionFiles.h"
#include "demo/region/Sites.h"
#include "demo/region/TerrainFiles.h"

#include <cstdio>
#include <fstream>

namespace {

constexpr const char* usage = "usage: demoregion FOLDER [SEED [TERRAIN]]\n"
                              "Writes the Skyvane Islands, a fictional region, as sources for chartmaker into FOLDER,\n"
                              "and their heights as an elevation tile into TERRAIN, a folder of the program.\n"
                              "They lie where there is open ocean in reality. Not for navigation.\n";

bool readSeed(const char* text, uint64_t& seed) {
    double number = 0.0;
    if (!skyvane::parseStrictNumber(text, number) || number < 0.0 || number > 1e15)
        return false;
    seed = static_cast<uint64_t>(number);
    return true;
}

bool writeSources(const std::map<std::string, std::string>& files, const std::string& folder) {
    for (const auto& [name, text] : files) {
        std::ofstream file(folder + "/" + name, std::ios::binary);
        file.write(text.data(), static_cast<std::streamsize>(text.size()));
        file.close();
        if (file.fail())
            return false;
    }
    return true;
}

int fail(const std::string& folder) {
    std::fprintf(stderr, "demoregion: can't write into %s\n", folder.c_str());
    return 1;
}

} // namespace

int main(int argc, char** argv) {
    using namespace skyvane::demo;
    uint64_t seed = 1;
    if (argc < 2 || argc > 4 || (argc >= 3 && !readSeed(argv[2], seed))) {
        std::fputs(usage, stderr);
        return 2;
    }
    const std::string folder = argv[1], terrain = argc == 4 ? std::string(argv[3]) + "/" : std::string();
    Landscape landscape(seed);
    const Sites sites = settle(landscape);
    if (!skyvane::makePath(folder) || !writeSources(makeRegionFiles(landscape, sites), folder))
        return fail(folder);
    if (!terrain.empty() && (!skyvane::makePath(terrain) || !writeTerrain(landscape, terrain)))
        return fail(terrain);
    return 0;
}

#include "chartmaker/terrain/TerrainCommand.h"

#include "chartmaker/terrain/HeightSources.h"
#include "chartmaker/terrain/TileOptions.h"
#include "terrain/files/BackgroundList.h"
#include "terrain/files/TerrainIndexFile.h"
#include "terrain/tree/TerrainStore.h"

#include <filesystem>
#include <iostream>

namespace skyvane {
namespace {

/// Heights that the tile had stay where there are no new ones.
void keepOld(const std::string& path, std::vector<int16_t>& heights) {
    std::vector<int16_t> old(TileSamples);
    if (loadTile(path, old.data()) != TileLoad::Loaded)
        return;
    for (size_t i = 0; i < old.size(); ++i)
        if (heights[i] == NoHeight)
            heights[i] = old[i];
}

/// The ids of the tiles written; false when the disk refused one.
bool writeTiles(const HeightSources& sources, const std::string& folder, std::list<int>& ids) {
    TerrainStore tree(folder, 1);
    std::vector<int16_t> heights(TileSamples);
    for (const HeightSources::Cell& cell : sources.getCells()) {
        const double west = cell.first, north = cell.second;
        const ITerrainNode* leaf = findFittingNode(tree.getRoot(), {west, north}, {west + 1.0, north - 1.0});
        if (!leaf || !sources.sample(cell, heights.data()))
            continue;
        const std::string path = getTilePath(folder, leaf->getId());
        keepOld(path, heights);
        if (!saveTile(path, heights.data())) {
            complain("can't write " + path);
            return false;
        }
        ids.push_back(leaf->getId());
    }
    return true;
}

} // namespace

int runTerrain(const Arguments& arguments) {
    TileOptions options;
    std::string error;
    if (!parseTileOptions(arguments, {"--out", "--name"}, options, error)) {
        complain("terrain: " + error + "; --help tells more");
        return 2;
    }
    HeightSources sources;
    bool allRead = true;
    for (const std::string& file : options.files) {
        error.clear();
        if (!sources.add(file, error)) {
            complain(error);
            allRead = false;
        }
    }
    const std::string folder = options.values["--out"] + "/", name = options.values["--name"],
                      list = folder + name + ".ti";
    std::error_code ignored;
    std::filesystem::create_directories(folder, ignored);
    std::list<int> ids = parseTIFile(list, nullptr, nullptr);
    const size_t before = ids.size();
    if (!writeTiles(sources, folder, ids))
        return 1;
    std::cout << folder << ": " << ids.size() - before << " tiles\n";
    ids.sort();
    ids.unique();
    if (!writeTIFile(list, name, ids, NoIndexText) || !setFolderDirty(folder, true)) {
        complain("can't write the lists in " + folder);
        return 1;
    }
    return allRead ? 0 : 1;
}

} // namespace skyvane

#include "chartmaker/terrain/LevelsCommand.h"

#include "chartmaker/report/ConsoleProgress.h"
#include "terrain/files/BackgroundList.h"
#include "terrain/files/TerrainIndexFile.h"
#include "terrain/tree/ITerrainProgress.h"
#include "terrain/tree/TerrainStore.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <thread>
#include <unistd.h>

namespace skyvane {
namespace {

class LevelsProgress : public ITerrainProgress {
public:
    void setTitle(const std::string&) override {} // words of warning for pilots
    void setProgress(double share) override { console_.setProgress(share); }
    void setState(const std::string& text) override { console_.setTitle(text); }
    bool isCancelled() override { return false; }
    void clear() { console_.clear(); }

private:
    ConsoleProgress console_{stderr};
};

unsigned long systemMemoryBytes() {
    return static_cast<unsigned long>(sysconf(_SC_PHYS_PAGES)) * static_cast<unsigned long>(sysconf(_SC_PAGESIZE));
}

} // namespace

int runLevels(const Arguments& arguments) {
    if (arguments.size() != 1 || arguments[0].rfind("--", 0) == 0) {
        complain("levels: name the terrain folder; --help tells more");
        return 2;
    }
    const std::string folder = arguments[0] + "/";
    if (!std::filesystem::is_directory(folder)) {
        complain(folder + " is no folder");
        return 1;
    }
    TerrainStore store(folder, 1);
    LevelsProgress progress;
    const bool isComplete = store.getRoot()->OnUpdate(folder.c_str(), &progress, systemMemoryBytes(),
                                                      std::max(std::thread::hardware_concurrency(), 1u));
    progress.clear();
    if (!isComplete || !setFolderDirty(folder, false)) {
        complain("can't write the tiles in " + folder);
        return 1;
    }
    std::cout << folder << ": " << parseTIFile(folder + CommonIndexName, nullptr, nullptr).size()
              << " tiles computed\n";
    return 0;
}

} // namespace skyvane

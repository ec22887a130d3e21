#include "terrain/jobs/BackgroundLevels.h"

#include "chart/areas/AreaTree.h"
#include "core/log/Logger.h"
#include "terrain/files/BackgroundList.h"
#include "terrain/files/VendorBackgrounds.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <set>

namespace skyvane {
namespace {

constexpr const char* LevelsTitle = "Calculating MipMap levels for Background Charts...\n"
                                    "This may take a long time. Perhaps it is a good idea to do this over night.\n";

struct PixelSum {
    uint32_t red, green, blue, alpha, count;
};

/// Where the children's pixels of one direction lie in the parent: the index of each, -1 beyond its edges.
std::vector<int> mapPixels(int count, double from, double to, double parentFrom, double parentTo, int size) {
    std::vector<int> places(static_cast<size_t>(count), -1);
    for (int i = 0; i < count; ++i) {
        const double degrees = from + (to - from) * (i + 0.5) / count;
        const int place = static_cast<int>((degrees - parentFrom) / (parentTo - parentFrom) * size);
        if (place >= 0 && place < size)
            places[static_cast<size_t>(i)] = place;
    }
    return places;
}

void addChild(const BackgroundImage& image, const IArea& child, const IArea& parent, int size,
              std::vector<PixelSum>& sums) {
    const std::vector<int> columns = mapPixels(image.width, child.getNWEdge().longitude, child.getSEEdge().longitude,
                                               parent.getNWEdge().longitude, parent.getSEEdge().longitude, size);
    const std::vector<int> rows = mapPixels(image.height, child.getNWEdge().latitude, child.getSEEdge().latitude,
                                            parent.getNWEdge().latitude, parent.getSEEdge().latitude, size);
    const uint32_t* pixel = image.pixels.data();
    for (const int row : rows)
        for (const int column : columns) {
            const uint32_t color = *pixel++;
            if (color >> 24 == 0 || row < 0 || column < 0)
                continue;
            PixelSum& sum = sums[static_cast<size_t>(row) * static_cast<size_t>(size) + static_cast<size_t>(column)];
            sum.red += color >> 16 & 0xff;
            sum.green += color >> 8 & 0xff;
            sum.blue += color & 0xff;
            sum.alpha += color >> 24;
            ++sum.count;
        }
}

bool isWhole(const BackgroundImage& image) {
    return image.width > 0 && image.height > 0 &&
           image.pixels.size() == static_cast<size_t>(image.width) * static_cast<size_t>(image.height);
}

/// Areas by how many lie above them.
std::map<int, std::set<int>> byDepth(const std::list<int>& areas, IArea* const* table) {
    std::map<int, std::set<int>> levels;
    for (const int area : areas) {
        int depth = 0;
        for (const IArea* node = getAreaOfTable(table, area); node && node->getParentIndex() >= 0; ++depth)
            node = getAreaOfTable(table, node->getParentIndex());
        levels[depth].insert(area);
    }
    return levels;
}

/// Those of a set of areas, whatever else there may be.
class SomeTiles : public IBackgroundTiles {
public:
    SomeTiles(IBackgroundTiles& tiles, const std::list<int>& areas)
        : tiles_(tiles), areas_(areas.begin(), areas.end()) {}
    bool load(int area, BackgroundImage& image) override { return areas_.count(area) && tiles_.load(area, image); }
    bool save(int area, const BackgroundImage& image) override {
        areas_.insert(area);
        return tiles_.save(area, image);
    }
    void remove(int area) override { tiles_.remove(area); }

private:
    IBackgroundTiles& tiles_;
    std::set<int> areas_;
};

std::string commonListPath(const std::string& imagesFolder, const std::string& vendor, IArea::BgType type) {
    const std::string kind = type == IArea::VFR ? "" : std::string("_") + getBgPrefix(type);
    return imagesFolder + vendor + "Common" + kind.substr(0, kind.size() - !kind.empty()) + BackgroundListEnding;
}

} // namespace

bool calculateMipMapLevel(IArea* const* table, int index, int size, IBackgroundTiles& tiles, BackgroundImage& image) {
    const IArea* parent = getAreaOfTable(table, index);
    const AreaNode* node = parent ? parent->asNode() : nullptr;
    if (!node)
        return false;
    std::vector<PixelSum> sums;
    BackgroundImage child;
    for (int i = 0; i < node->getChildCount(); ++i) {
        if (!tiles.load(node->getChild(i), child) || !isWhole(child))
            continue;
        sums.resize(static_cast<size_t>(size) * static_cast<size_t>(size));
        addChild(child, *getAreaOfTable(table, node->getChild(i)), *parent, size, sums);
    }
    image.width = image.height = size;
    image.pixels.clear();
    for (const PixelSum& sum : sums)
        image.pixels.push_back(sum.count ? 0xff000000u | sum.red / sum.count << 16 | sum.green / sum.count << 8 |
                                               sum.blue / sum.count
                                         : 0u);
    return !sums.empty();
}

namespace {

/// One level: the parents of these areas that aren't given themselves.
class LevelWork {
public:
    LevelWork(int size, IArea* const* table, IBackgroundTiles& tiles, ITerrainProgress& progress)
        : size_(size), table_(table), tiles_(tiles), progress_(progress) {}

    /// Adds the parents to the level above. False when it shall end.
    bool run(const std::set<int>& areas, std::set<int>& above, std::list<int>& computed) {
        std::set<int> parents;
        for (const int area : areas)
            parents.insert(getAreaOfTable(table_, area)->getParentIndex());
        size_t done = 0;
        for (const int parent : parents) {
            if (progress_.isCancelled())
                return false;
            const bool isGiven = !above.insert(parent).second;
            if (!isGiven && calculateMipMapLevel(table_, parent, size_, tiles_, image_)) {
                Logger::logStringConsole("writing: " + std::to_string(parent));
                computed.push_back(parent);
                if (!tiles_.save(parent, image_))
                    return false;
            }
            progress_.setProgress(static_cast<double>(++done) / static_cast<double>(parents.size()));
        }
        return true;
    }

private:
    int size_;
    IArea* const* table_;
    IBackgroundTiles& tiles_;
    ITerrainProgress& progress_;
    BackgroundImage image_;
};

} // namespace

bool calculateMipMaps(const std::list<int>& given, std::list<int>& computed, int size, IArea* const* table,
                      IBackgroundTiles& tiles, ITerrainProgress& progress) {
    std::map<int, std::set<int>> levels = byDepth(given, table);
    const int deepest = levels.empty() ? 0 : levels.rbegin()->first;
    SomeTiles known(tiles, given);
    LevelWork work(size, table, known, progress);
    for (int depth = deepest; depth > 0; --depth) {
        progress.setState("Processing level " + std::to_string(deepest - depth + 1) + "th of " +
                          std::to_string(deepest) + "...");
        if (work.run(levels[depth], levels[depth - 1], computed))
            continue;
        for (const int area : computed)
            tiles.remove(area);
        computed.clear();
        return false;
    }
    return true;
}

bool syncBackgrounds(const std::string& imagesFolder, const std::string& vendor, IArea::BgType type,
                     IArea* const* table, IBackgroundTiles& tiles, ITerrainProgress& progress) {
    std::list<int> given, computed;
    std::error_code error;
    for (std::filesystem::directory_iterator it(imagesFolder, error), end; !error && it != end; it.increment(error)) {
        if (it->path().extension() != BackgroundListEnding)
            continue;
        const VendorBackgrounds list(it->path().string(), imagesFolder);
        if (!list.isGood() || list.getVendor() != vendor || list.getBgType() != type)
            continue;
        if (list.isCommon())
            list.deleteFromStorage();
        else
            given.splice(given.end(), list.calculateLeafList());
    }
    given.sort();
    given.unique();
    if (given.empty())
        return true;
    progress.setTitle(LevelsTitle);
    return calculateMipMaps(given, computed, BackgroundLevelSize, table, tiles, progress) &&
           writeBgFile(commonListPath(imagesFolder, vendor, type), vendor, type, true, computed);
}

} // namespace skyvane

#include "chartmaker/terrain/BackgroundsCommand.h"

#include "chartmaker/terrain/ChartRasters.h"
#include "chartmaker/terrain/TileOptions.h"
#include "core/files/Paths.h"
#include "core/files/SafeFile.h"
#include "terrain/files/BackgroundList.h"

#include <iostream>
#include <optional>

namespace skyvane {
namespace {

std::optional<IArea::BgType> typeNamed(const std::string& word) {
    for (const IArea::BgType type : {IArea::VFR, IArea::IFR_LOW, IArea::IFR_HIGH})
        if (word + "_" == getBgPrefix(type))
            return type;
    return std::nullopt;
}

/// False when the disk refused one.
bool writeTiles(const ChartRasters& charts, const std::string& prefix, std::list<int>& written) {
    for (const int area : charts.getAreas()) {
        const std::string path = prefix + std::to_string(area) + BackgroundTileEnding;
        const std::string png = charts.makeTile(area, path);
        if (png.empty())
            continue;
        if (saveFileSafely(path, png) != 0) {
            complain("can't write " + path);
            return false;
        }
        written.push_back(area);
    }
    return true;
}

} // namespace

int runBackgrounds(const Arguments& arguments) {
    TileOptions options;
    std::string error;
    const bool parsed = parseTileOptions(arguments, {"--out", "--vendor", "--name", "--type"}, options, error);
    const auto type = typeNamed(options.values["--type"]);
    if (!parsed || !type) {
        complain("backgrounds: " + (parsed ? "--type is vfr, ifr or ifrh" : error) + "; --help tells more");
        return 2;
    }
    ChartRasters charts;
    bool allRead = true;
    for (const std::string& file : options.files) {
        error.clear();
        if (!charts.add(file, error)) {
            complain(error);
            allRead = false;
        }
    }
    const std::string images = options.values["--out"] + "/", vendor = options.values["--vendor"];
    const std::string folder = getBgFolder(images, vendor);
    std::list<int> areas;
    makePath(folder);
    if (!writeTiles(charts, folder + getBgPrefix(*type), areas))
        return 1;
    std::cout << folder << ": " << areas.size() << " tiles\n";
    if (!mergeBgFile(images + options.values["--name"] + BackgroundListEnding, vendor, *type, false, areas) ||
        !setFolderDirty(folder, true)) {
        complain("can't write the lists in " + images);
        return 1;
    }
    return allRead ? 0 : 1;
}

} // namespace skyvane

#include "terrain/files/BackgroundList.h"

#include "chart/areas/AreaTree.h"
#include "core/files/SafeFile.h"
#include "core/ini/IniFile.h"
#include "core/text/Numbers.h"
#include "terrain/files/ListText.h"

#include <algorithm>

namespace skyvane {
namespace {

constexpr const char* ReservedLine = "0";
constexpr const char* ClosingLine = "N/A";
/// By type value.
constexpr const char* TypeWords[] = {"vfr", "ifr", "ifrh"};
constexpr const char* Prefixes[] = {"vfr_", "ifr_", "ifrh_"};
constexpr size_t ShortestTileName = 9;
constexpr const char* DirtyKey = "dirty";

size_t indexOf(IArea::BgType type) {
    return type >= IArea::VFR && type <= IArea::IFR_HIGH ? static_cast<size_t>(type) : size_t(IArea::IFR_HIGH);
}

IArea::BgType typeOf(std::string_view word) {
    return word == TypeWords[IArea::VFR]       ? IArea::VFR
           : word == TypeWords[IArea::IFR_LOW] ? IArea::IFR_LOW
                                               : IArea::IFR_HIGH;
}

std::string dirtyPath(const std::string& folder) {
    return folder + "/dirty.ini";
}

} // namespace

std::list<int> parseBgFile(const std::string& path, std::string* vendor, std::string* second, IArea::BgType* type,
                           bool* common, std::string* closing) {
    std::list<int> areas;
    const std::string text = readListText(path);
    std::string_view rest = text, line;
    if (takeListLine(rest, line) && vendor)
        *vendor = line;
    if (takeListLine(rest, line) && second)
        *second = line;
    if (takeListLine(rest, line) && type)
        *type = typeOf(line);
    if (takeListLine(rest, line) && common)
        *common = line == "1";
    std::string_view last = rest;
    while (takeListLine(rest, line)) {
        const std::optional<int> area = parseListNumber(line);
        if (!area) {
            last = line;
            break;
        }
        if (*area <= LastAreaIndex)
            areas.push_back(*area);
        last = rest;
    }
    if (closing)
        *closing = last;
    return areas;
}

bool writeBgFile(const std::string& path, const std::string& vendor, IArea::BgType type, bool common,
                 const std::list<int>& areas) {
    std::string text = vendor + "\n" + ReservedLine + "\n" + TypeWords[indexOf(type)] + "\n" + (common ? "1" : "0");
    for (const int area : areas)
        text += "\n" + toText(area);
    return saveFileSafely(path, text + "\n" + ClosingLine) == 0;
}

bool mergeBgFile(const std::string& path, const std::string& vendor, IArea::BgType type, bool common,
                 std::list<int>& areas) {
    areas.splice(areas.end(), parseBgFile(path, nullptr, nullptr, nullptr, nullptr, nullptr));
    areas.sort();
    areas.unique();
    return writeBgFile(path, vendor, type, common, areas);
}

const char* getBgPrefix(IArea::BgType type) {
    return Prefixes[indexOf(type)];
}

bool parseBgFileName(const std::string& name, IArea::BgType& type, int& area) {
    const std::string ending = BackgroundTileEnding;
    if (name.size() < ShortestTileName || name.compare(name.size() - ending.size(), ending.size(), ending) != 0)
        return false;
    for (const IArea::BgType candidate : {IArea::VFR, IArea::IFR_LOW}) {
        const std::string prefix = Prefixes[candidate];
        if (name.compare(0, prefix.size(), prefix) != 0)
            continue;
        const std::string_view digits(name.data() + prefix.size(), name.size() - prefix.size() - ending.size());
        const std::optional<int> number = parseListNumber(digits);
        if (!number)
            return false;
        type = candidate;
        area = *number;
        return true;
    }
    return false;
}

std::string getBgFolder(const std::string& imagesFolder, const std::string& vendor) {
    const bool isName =
        !vendor.empty() && vendor.find('/') == std::string::npos && vendor.find('\0') == std::string::npos;
    return isName ? imagesFolder + vendor + "_Backgrounds/" : std::string();
}

bool isFolderDirty(const std::string& folder) {
    IniFile document(dirtyPath(folder));
    return document.isAvailable("", DirtyKey) && toInt(document.get("", DirtyKey), 1) != 0;
}

bool setFolderDirty(const std::string& folder, bool dirty) {
    IniFile document(dirtyPath(folder));
    document.set("", DirtyKey, dirty ? "1" : "0");
    return document.Save(dirtyPath(folder));
}

} // namespace skyvane

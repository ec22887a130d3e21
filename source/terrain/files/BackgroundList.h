#pragma once

#include "chart/areas/IArea.h"

#include <list>
#include <string>

namespace skyvane {

// The lists of background tiles, `Images/<name>.bg`. Text, a line feed behind each line but the last:
//
//   the vendor
//   "0"                      reserved
//   "vfr", "ifr" or "ifrh"   any other word is read as the last
//   "1" or "0"               made here from other tiles, or brought by a package
//   numbers of areas         one a line, decimal
//   "N/A"                    reserved
//
// A tile is the picture `Images/<vendor>_Backgrounds/<prefix><area>.png`.

constexpr const char* BackgroundListEnding = ".bg";
constexpr const char* BackgroundTileEnding = ".png";

/// The numbers in the file's order, up to the first line that is none; those that are no area's are left out. A file
/// that can't be opened gives an empty list and leaves the out-parameters; each of them may be null.
std::list<int> parseBgFile(const std::string& path, std::string* vendor, std::string* second, IArea::BgType* type,
                           bool* common, std::string* closing);

/// Replaces the file in one step. False when it can't be written.
bool writeBgFile(const std::string& path, const std::string& vendor, IArea::BgType type, bool common,
                 const std::list<int>& areas);

/// Joins the numbers of the file, when there is one, with those of the list: each once, ascending, in both.
bool mergeBgFile(const std::string& path, const std::string& vendor, IArea::BgType type, bool common,
                 std::list<int>& areas);

/// "vfr_", "ifr_" or "ifrh_".
const char* getBgPrefix(IArea::BgType type);

/// Whether a file is named like a tile of the first two types ("vfr_7.png"), and like which.
bool parseBgFileName(const std::string& name, IArea::BgType& type, int& area);

/// `<images folder><vendor>_Backgrounds/`; empty for a vendor that has no name, or whose name would lead elsewhere.
std::string getBgFolder(const std::string& imagesFolder, const std::string& vendor);

/// The flag of a folder of tiles, in its document `dirty.ini`: tiles have come or gone, so that what is made from them
/// must be made anew. Without the document it isn't set.
bool isFolderDirty(const std::string& folder);
/// What else stands in the document stays. False when it can't be written.
bool setFolderDirty(const std::string& folder, bool dirty);

} // namespace skyvane

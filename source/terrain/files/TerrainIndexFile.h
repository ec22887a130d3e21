#pragma once

#include <list>
#include <string>

namespace skyvane {

// Lists of the elevation tiles that a package brought, <name>.ti, and of those computed here, common.ti. Text lines,
// ended by a line feed: "0", the package's name, one node id in decimal a line; then a closing text without a line
// feed.

constexpr const char* TerrainIndexEnding = ".ti";
constexpr const char* CommonIndexName = "common.ti";
/// Name and closing text of common.ti.
constexpr const char* NoIndexText = "N/A";

/// The ids in the file's order; name and closing text may be null. A file that can't be read gives an empty list; so
/// does one whose first line isn't "0", which prints "Error: Wrong format.". Lines that aren't the id of a node are
/// left out.
std::list<int> parseTIFile(const std::string& path, std::string* name, std::string* closing);

/// Replaces the file as a whole or not at all; name and closing text hold no line feeds. False when the disk refuses.
bool writeTIFile(const std::string& path, const std::string& name, const std::list<int>& ids,
                 const std::string& closing);

} // namespace skyvane

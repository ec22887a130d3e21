#pragma once

#include <list>
#include <optional>
#include <string>
#include <vector>

namespace skyvane {

/// A folder that data can be put in.
struct MountPoint {
    std::string name;
    std::string path;
    unsigned long long freeBytes = 0;
    unsigned long long totalBytes = 0;
};

/// Order by free bytes, larger first.
bool mountpointGeq(const MountPoint& a, const MountPoint& b);

/// The mount paths (second fields) of a text in the form of /proc/mounts, its octal escapes decoded.
std::vector<std::string> parseMountPaths(const std::string& mounts);

/// The folder with the room on its file system, named as its path; nothing when the system can't tell.
std::optional<MountPoint> measureMountPoint(const std::string& path);

/// The mounted folders that can be read and written and have room of their own, most room first; none of the system's
/// own in /run, /proc, /sys and /dev.
std::list<MountPoint> getUsableMountPoints();

} // namespace skyvane

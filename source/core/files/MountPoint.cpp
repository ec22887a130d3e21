#include "core/files/MountPoint.h"

#include <fstream>
#include <iterator>
#include <sstream>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace skyvane {

namespace {

bool isOctal(char c) {
    return c >= '0' && c <= '7';
}

// The kernel writes blanks and backslashes of a path as a backslash and three octal digits.
std::string decodeOctalEscapes(const std::string& text) {
    std::string result;
    for (size_t i = 0; i < text.size(); ++i) {
        const bool escape = text[i] == '\\' && i + 3 < text.size() && isOctal(text[i + 1]) && isOctal(text[i + 2]) &&
                            isOctal(text[i + 3]);
        if (escape) {
            result += static_cast<char>((text[i + 1] - '0') * 64 + (text[i + 2] - '0') * 8 + (text[i + 3] - '0'));
            i += 3;
        } else {
            result += text[i];
        }
    }
    return result;
}

// What the kernel shows of itself, and what is gone after a restart.
bool isOfTheSystem(const std::string& path) {
    for (const char* folder : {"/run/", "/proc/", "/sys/", "/dev/"})
        if ((path + "/").rfind(folder, 0) == 0)
            return true;
    return false;
}

// A single file can be a mount too, and takes no data.
bool isUsable(const std::string& path) {
    struct stat status;
    return !isOfTheSystem(path) && access(path.c_str(), R_OK | W_OK) == 0 && stat(path.c_str(), &status) == 0 &&
           S_ISDIR(status.st_mode);
}

} // namespace

bool mountpointGeq(const MountPoint& a, const MountPoint& b) {
    return a.freeBytes > b.freeBytes;
}

std::vector<std::string> parseMountPaths(const std::string& mounts) {
    std::vector<std::string> paths;
    std::istringstream lines(mounts);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream fields(line);
        std::string device;
        std::string path;
        if (fields >> device >> path)
            paths.push_back(decodeOctalEscapes(path));
    }
    return paths;
}

std::optional<MountPoint> measureMountPoint(const std::string& path) {
    struct statvfs status;
    if (statvfs(path.c_str(), &status) != 0)
        return std::nullopt;
    MountPoint point;
    point.name = path;
    point.path = path;
    point.freeBytes = static_cast<unsigned long long>(status.f_bavail) * status.f_frsize;
    point.totalBytes = static_cast<unsigned long long>(status.f_blocks) * status.f_frsize;
    return point;
}

std::list<MountPoint> getUsableMountPoints() {
    std::ifstream in("/proc/mounts", std::ios::binary);
    const std::string mounts{std::istreambuf_iterator<char>(in), {}};
    std::list<MountPoint> points;
    for (const std::string& path : parseMountPaths(mounts))
        if (isUsable(path))
            if (auto point = measureMountPoint(path); point && point->totalBytes > 0)
                points.push_back(*point);
    points.sort(mountpointGeq);
    return points;
}

} // namespace skyvane

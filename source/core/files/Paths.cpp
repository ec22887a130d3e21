#include "core/files/Paths.h"

#include "core/text/Numbers.h"

#include <cmath>
#include <cstring>
#include <fstream>
#include <sys/stat.h>
#include <sys/statvfs.h>

namespace skyvane {

namespace {

bool isFolder(const std::string& path) {
    struct stat status;
    return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

bool makeFolder(const std::string& path) {
    return mkdir(path.c_str(), 0770) == 0 || isFolder(path);
}

} // namespace

std::string getAppHomePathFromArgV0(const char* argv0) {
    const std::string path = argv0 ? argv0 : "";
    return path.substr(0, path.find_last_of("/\\") + 1);
}

bool makePath(const std::string& path) {
    for (size_t end = path.find_first_of("/\\"); end != std::string::npos; end = path.find_first_of("/\\", end + 1))
        if (end > 0)
            makeFolder(path.substr(0, end));
    return makeFolder(path);
}

std::string cleanPath(const std::string& path) {
    std::string result;
    for (const char c : path)
        if (c != '/' || result.empty() || result.back() != '/')
            result += c;
    return result;
}

bool writeStringToFile(const std::string& path, const std::string& text) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(text.data(), static_cast<std::streamsize>(text.size()));
    out.close();
    return out.good();
}

bool fileExist(const std::string& path) {
    struct stat status;
    return stat(path.c_str(), &status) == 0 && !S_ISDIR(status.st_mode);
}

std::string humanReadableSpace(unsigned long bytes, double base) {
    const auto rounded = [](double value) { return toText(std::round(value * 100.0) / 100.0); };
    const double count = static_cast<double>(bytes);
    if (bytes <= 102399)
        return rounded(count / base) + " KB";
    if (bytes <= 104857599)
        return rounded(count / (base * base)) + " MB";
    return rounded(count / (base * base * base)) + " GB";
}

unsigned long getFileSystemBlockSize(const std::string& path) {
    struct statvfs status;
    return statvfs(path.c_str(), &status) == 0 && status.f_bsize > 0 ? status.f_bsize : 4096;
}

} // namespace skyvane

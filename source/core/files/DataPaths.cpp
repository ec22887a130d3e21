#include "core/files/DataPaths.h"

#include "core/files/Paths.h"

#include <cctype>

namespace skyvane {
namespace {

bool startsWith(const std::string& text, const char* beginning) {
    return text.rfind(beginning, 0) == 0;
}

bool isAbsolute(const std::string& path) {
    if (startsWith(path, "/"))
        return true;
    return path.size() >= 3 && std::isalpha(static_cast<unsigned char>(path[0])) && path[1] == ':' &&
           (path[2] == '/' || path[2] == '\\');
}

} // namespace

DataPaths DataPaths::below(const std::string& root) {
    const std::string folder = root + (root.empty() || root.back() == '/' ? "" : "/") + FolderName;
    return {folder, folder, folder, folder};
}

bool DataPaths::makeFolders() const {
    const bool images = makePath(image + "Images");
    const bool terrains = makePath(terrain + "Terrain");
    const bool charts = makePath(data + "ChartData");
    return makePath(log + "Logs") && images && terrains && charts;
}

std::string DataPaths::getAbsolutePath(const std::string& path, const std::string& home) const {
    if (isAbsolute(path))
        return path;
    if (startsWith(path, "Images/"))
        return image + path;
    if (startsWith(path, "Terrain/"))
        return terrain + path;
    if (startsWith(path, "ChartData/"))
        return data + path;
    if (startsWith(path, "Logs/"))
        return log + path;
    return home + path;
}

} // namespace skyvane

#include "core/files/FilesOfFolder.h"

#include "core/log/Logger.h"

#include <algorithm>
#include <filesystem>

namespace skyvane {

std::vector<std::string> filesOfFolder(const std::string& folder, const std::string& ending) {
    namespace fs = std::filesystem;
    std::vector<std::string> names;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        const bool endsSo =
            name.size() >= ending.size() && name.compare(name.size() - ending.size(), ending.size(), ending) == 0;
        std::error_code ignored;
        if (endsSo && entry->is_regular_file(ignored))
            names.push_back(name);
    }
    if (error)
        logText("Folder change unsuccessful: " + error.message() + "\n");
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace skyvane

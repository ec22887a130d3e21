#include "chart/store/CustomElementFiles.h"

#include "core/files/Paths.h"
#include "core/ini/IniFile.h"
#include "core/log/Logger.h"

#include <cstdio>

namespace skyvane {

std::string CustomElementFiles::pathOf(int id) const {
    return folder_ + "e" + std::to_string(id) + ".ini";
}

std::unique_ptr<IniFile> CustomElementFiles::load(int id) const {
    const std::string path = pathOf(id);
    return fileExist(path) ? std::make_unique<IniFile>(path) : nullptr;
}

bool CustomElementFiles::replace(const IniFile& document, int id) const {
    const std::string path = pathOf(id);
    if (makePath(folder_) && document.Save(path))
        return true;
    logText("Could not save " + path + "\n");
    return false;
}

bool CustomElementFiles::add(const IniFile& document, int id) const {
    const std::string path = pathOf(id);
    if (fileExist(path)) {
        std::string kept = path + ".kept";
        while (fileExist(kept))
            kept += "+";
        logText(path + " is in the way of a new element: it is kept as " + kept + "\n");
        if (std::rename(path.c_str(), kept.c_str()) != 0)
            return false;
    }
    return replace(document, id);
}

bool CustomElementFiles::remove(int id, int lastId) const {
    const std::string path = pathOf(id), last = pathOf(lastId);
    const int result = id == lastId ? std::remove(path.c_str()) : std::rename(last.c_str(), path.c_str());
    if (result != 0)
        logText("Could not delete " + path + "\n");
    return result == 0;
}

} // namespace skyvane

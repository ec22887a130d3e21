#include "core/files/HomeFolder.h"

#include "core/files/FileMoving.h"
#include "core/files/Paths.h"
#include "core/files/Version.h"
#include "core/ini/IniFile.h"
#include "core/text/Numbers.h"

#include <cstdio>

namespace skyvane {
namespace {

std::string withSlash(const std::string& path) {
    return path.empty() || path.back() == '/' ? path : path + "/";
}

} // namespace

std::string HomeFolder::getMarkerPath() const {
    return home_ + "data/" + configVersionText() + "_data_created";
}

bool HomeFolder::isFirstStart() const {
    return !fileExist(getMarkerPath());
}

bool HomeFolder::writeMarker() const {
    return fileExist(getMarkerPath()) || writeStringToFile(getMarkerPath(), "");
}

bool HomeFolder::createDocuments(const StandardDocuments& documents) const {
    bool done = true;
    for (const char* folder : {"data", "customElements", "Screenshots", "data/Packages"})
        done = makePath(home_ + folder) && done;
    std::remove((home_ + "data/recent").c_str());
    done = writeStringToFile(home_ + "data/calibration.ini", documents.calibration) && done;
    done = writeStandardConfig(documents.config) && done;
    done = writeStringToFile(home_ + "data/extSensorConfig.ini", documents.extSensorConfig) && done;
    done = writeStringToFile(home_ + "data/hotspot.ini", documents.hotspot) && done;
    const std::string aircrafts = home_ + "data/aircrafts.ini";
    return (fileExist(aircrafts) || writeStringToFile(aircrafts, documents.aircrafts)) && done;
}

std::string HomeFolder::findOtherConfigVersion() const {
    IniFile config(home_ + "data/config.ini");
    const auto number = [&config](const char* key) {
        return config.isAvailable("", key) ? toUnsigned(config.get("", key)) : 0u;
    };
    const unsigned major = number("major"), minor = number("minor");
    if (major == 0 || (major == ConfigMajor && minor == ConfigMinor))
        return {};
    return std::to_string(major) + "." + std::to_string(minor);
}

bool HomeFolder::writeStandardConfig(const char* standardConfig) const {
    const std::string path = home_ + "data/config.ini";
    if (!findOtherConfigVersion().empty())
        std::rename(path.c_str(), (path + ".old").c_str());
    IniFile config;
    config.setFromString(standardConfig);
    config.set("", "major", std::to_string(ConfigMajor));
    config.set("", "minor", std::to_string(ConfigMinor));
    return config.Save(path);
}

bool HomeFolder::hasDataLocation() const {
    return fileExist(home_ + "data/data.ini");
}

DataPaths HomeFolder::readDataPaths() const {
    IniFile document(home_ + "data/data.ini");
    const auto path = [&](const char* key) {
        const std::string root = withSlash(document.get("", key));
        return (root.empty() ? home_ : root) + DataPaths::FolderName;
    };
    return {path("Backgrounds"), path("Terrain"), path("Data"), path("Logs")};
}

/// The path without the program's own folder at its end.
std::string HomeFolder::rootOf(const std::string& path) const {
    const std::string ending = DataPaths::FolderName;
    const bool hasEnding =
        path.size() >= ending.size() && path.compare(path.size() - ending.size(), ending.size(), ending) == 0;
    return hasEnding ? path.substr(0, path.size() - ending.size()) : path;
}

bool HomeFolder::saveDataPaths(const DataPaths& paths) const {
    IniFile document(home_ + "data/data.ini");
    if (document.get("", "Vendor").empty())
        document.set("", "Vendor", "Skyvane");
    document.set("", "Backgrounds", rootOf(paths.image));
    document.set("", "Terrain", rootOf(paths.terrain));
    document.set("", "Data", rootOf(paths.data));
    document.set("", "Logs", rootOf(paths.log));
    return document.Save(home_ + "data/data.ini");
}

void HomeFolder::removeLeftFiles() const {
    removeListedFiles(home_ + "data/remList.txt");
}

bool isUsableDataRoot(const std::string& root) {
    const std::string folder = withSlash(root) + DataPaths::FolderName;
    const std::string probe = folder + ".probe";
    if (!makePath(folder) || !writeStringToFile(probe, "1"))
        return false;
    std::remove(probe.c_str());
    return true;
}

std::string firstUsableDataRoot(const std::list<std::string>& folders) {
    for (const std::string& folder : folders)
        if (!folder.empty() && isUsableDataRoot(folder))
            return withSlash(folder);
    return {};
}

} // namespace skyvane

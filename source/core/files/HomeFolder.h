#pragma once

#include "core/files/DataPaths.h"

#include <list>
#include <string>

namespace skyvane {

/// The texts of the documents that a first start writes.
struct StandardDocuments {
    const char* config;
    const char* aircrafts;
    const char* hotspot;
    const char* extSensorConfig;
    const char* calibration;
};

/// The program's home on disk: what a first start makes there, and where it says that the bulky data lies.
///
/// Nothing here asks the user, draws or ends the program: what can't be written is told by the result, and the rest is
/// done all the same.
///
///     HomeFolder home("/opt/skyvane/");
///     if (home.isFirstStart()) home.createDocuments(documents);
///     if (!home.hasDataLocation()) home.saveDataPaths(DataPaths::below(root));
///     home.writeMarker();
class HomeFolder {
public:
    /// With a trailing slash; empty for the current directory.
    explicit HomeFolder(std::string home) : home_(std::move(home)) {}

    std::string getMarkerPath() const;
    /// No marker of this version: the first start of an installation or of a new version.
    bool isFirstStart() const;
    bool writeMarker() const;

    /// Folders and documents of a first start; aircrafts.ini only when there is none. False when something is missing
    /// afterwards.
    bool createDocuments(const StandardDocuments& documents) const;
    /// "2.7" for a data/config.ini of that version; empty for one of this version, and where it has no version.
    std::string findOtherConfigVersion() const;
    /// The standard configuration, marked with the current version, as data/config.ini. One of another version is kept
    /// beside it, as data/config.ini.old.
    bool writeStandardConfig(const char* standardConfig) const;

    bool hasDataLocation() const;
    /// The paths of data/data.ini. A root that it lacks is the home.
    DataPaths readDataPaths() const;
    /// The paths as roots, into data/data.ini, whose other keys stay; the vendor is set when there is none.
    bool saveDataPaths(const DataPaths& paths) const;

    /// Removes what a former move of data left behind, and the list of it.
    void removeLeftFiles() const;

private:
    std::string rootOf(const std::string& path) const;

    std::string home_;
};

/// Whether a file can be made in the program's folder below the root; makes the folder.
bool isUsableDataRoot(const std::string& root);

/// The first of the folders that is, with a trailing slash; empty when there is none.
std::string firstUsableDataRoot(const std::list<std::string>& folders);

} // namespace skyvane

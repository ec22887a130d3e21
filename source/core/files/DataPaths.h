#pragma once

#include <string>

namespace skyvane {

/// The program's own folders below the roots that its bulky data was given, each with a trailing slash.
struct DataPaths {
    std::string image;   ///< holds Images/
    std::string terrain; ///< holds Terrain/
    std::string data;    ///< holds ChartData/
    std::string log;     ///< holds Logs/

    /// The name of the program's folder below a root, with its slash.
    static constexpr const char* FolderName = ".Skyvane/";
    /// All four below one root.
    static DataPaths below(const std::string& root);

    /// Makes the four folders and the ones that they hold; false when one isn't there afterwards.
    bool makeFolders() const;
    /// Absolute paths stay; "Images/", "Terrain/", "ChartData/" and "Logs/" lie in their folders, everything else in
    /// `home`.
    std::string getAbsolutePath(const std::string& path, const std::string& home) const;
};

} // namespace skyvane

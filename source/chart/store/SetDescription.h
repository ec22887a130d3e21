#pragma once

#include <string>

namespace skyvane {

/// What stands in the description of a chart set, a document `ChartData/<name>.sci`.
struct SetDescription {
    int chartVersion = 0;
    std::string vendor;
    std::string areaName;
    /// The set's folder as the document has it: absolute, or seen from the folder of chart data.
    std::string location;

    /// A missing key keeps its default; a file that can't be read gives all of them.
    static SetDescription load(const std::string& path);
    /// In one step. False when it can't be written; what was there stays then.
    bool save(const std::string& path) const;

    /// The set's folder without a slash at its end. The folder of chart data comes with one.
    std::string getFolder(const std::string& chartDataFolder) const;
};

} // namespace skyvane

#pragma once

#include <filesystem>
#include <string>

namespace skyvane {

/// The checkout that the running test was built in, with a trailing slash; empty when the build lies elsewhere.
/// Found at run time, so that no path is compiled in.
inline std::string sourceFolder() {
    std::filesystem::path folder = std::filesystem::read_symlink("/proc/self/exe").parent_path();
    while (folder.has_relative_path() && !std::filesystem::exists(folder / "CMakePresets.json"))
        folder = folder.parent_path();
    return folder.has_relative_path() ? folder.string() + "/" : std::string();
}

} // namespace skyvane

#pragma once

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>

namespace skyvane {

/// The path of a file of the project, which is looked for upwards from the test program.
inline std::string projectPath(const std::string& name) {
    std::error_code error;
    std::filesystem::path folder = std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
    while (folder.has_relative_path() && !std::filesystem::exists(folder / "CMakePresets.json", error))
        folder = folder.parent_path();
    return (folder / name).string();
}

/// The file's bytes; a failure of the test when it can't be read.
inline std::string projectFile(const std::string& name) {
    std::ifstream in(projectPath(name), std::ios::binary);
    EXPECT_TRUE(in.good()) << name << " isn't there";
    return {std::istreambuf_iterator<char>(in), {}};
}

} // namespace skyvane

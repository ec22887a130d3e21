#pragma once

#include "support/SourceFolder.h"

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>

namespace skyvane {

/// The path of a file of the project.
inline std::string projectPath(const std::string& name) {
    return sourceFolder() + name;
}

/// The file's bytes; a failure of the test when it can't be read.
inline std::string projectFile(const std::string& name) {
    std::ifstream in(projectPath(name), std::ios::binary);
    EXPECT_TRUE(in.good()) << name << " isn't there";
    return {std::istreambuf_iterator<char>(in), {}};
}

} // namespace skyvane

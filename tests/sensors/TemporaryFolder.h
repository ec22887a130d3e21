#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace skyvane {

/// A folder of its own that goes with the test.
class TemporaryFolder {
public:
    TemporaryFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "skyvane-XXXXXX").string();
        path_ = mkdtemp(pattern.data());
    }
    ~TemporaryFolder() { std::filesystem::remove_all(path_); }

    std::string path(const std::string& name = "") const { return name.empty() ? path_ : path_ + "/" + name; }
    void write(const std::string& name, const std::string& text) const { std::ofstream(path(name)) << text; }
    void remove(const std::string& name) const { std::filesystem::remove(path(name)); }

private:
    std::string path_;
};

} // namespace skyvane

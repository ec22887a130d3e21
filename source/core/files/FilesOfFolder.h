#pragma once

#include <string>
#include <vector>

namespace skyvane {

/// The names of a folder's files that end so, in bytewise order. None, and a line in the log, for a folder that can't
/// be read.
std::vector<std::string> filesOfFolder(const std::string& folder, const std::string& ending);

} // namespace skyvane

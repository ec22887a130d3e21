#pragma once

#include <string>
#include <vector>

namespace skyvane {

/// Names of logs in their folder. What comes from a user or a document never leads out of it.

/// Digits, letters, "-" and "_", one to a hundred of them: what a new log may be called, without its ".dat".
bool isLogName(const std::string& name);

/// The files of the folder that are logs by their ending, sorted; the ending counts in any case. Names that a list of
/// alternatives can't hold are left out.
std::vector<std::string> listLogs(const std::string& folder);

/// The path of a log, for a name that is in the folder itself; empty for any other.
std::string logPath(const std::string& folder, const std::string& fileName);

} // namespace skyvane

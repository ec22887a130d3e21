#pragma once

#include <functional>
#include <list>
#include <string>
#include <utility>

namespace skyvane {

/// Source and target path of a file to copy.
using FilePair = std::pair<std::string, std::string>;

/// Copies the files in order; stops at the first that can't be read, written or closed, or would go onto itself. The
/// share done, 0 to 1, goes to `progress` before a file when it changed by more than 0.01. The result is the list of
/// pairs done.
std::list<FilePair> copyFilePairs(const std::list<FilePair>& pairs, const std::function<void(double)>& progress);

/// "Copying files: 42%".
std::string copyProgressText(double share);

/// Removes the file that each line of the list names, then the list. What can't be removed is left.
void removeListedFiles(const std::string& listPath);

} // namespace skyvane

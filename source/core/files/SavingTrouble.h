#pragma once

#include <cstdint>
#include <string>

namespace skyvane {

/// What a file system says of a folder.
struct FolderRoom {
    int error = 0; ///< The errno of asking whether one may write there.
    uint64_t freeBytes = 0;
};
FolderRoom lookAtFolder(const std::string& folder);

/// Why nothing can be saved in a folder and what to do about it, in a sentence each; empty where all is well.
std::string savingTrouble(const std::string& folder, const FolderRoom& room);

} // namespace skyvane

#include "core/files/SavingTrouble.h"

#include <cerrno>
#include <sys/statvfs.h>
#include <unistd.h>

namespace skyvane {
namespace {

/// Settings are written beside the former ones before they take their place.
constexpr uint64_t NeededBytes = 512 * 1024;

} // namespace

FolderRoom lookAtFolder(const std::string& folder) {
    FolderRoom room;
    struct statvfs files {};
    if (access(folder.c_str(), W_OK) != 0 || statvfs(folder.c_str(), &files) != 0)
        room.error = errno;
    room.freeBytes = static_cast<uint64_t>(files.f_bavail) * files.f_frsize;
    return room;
}

std::string savingTrouble(const std::string& folder, const FolderRoom& room) {
    switch (room.error) {
    case 0:
        return room.freeBytes >= NeededBytes
                   ? ""
                   : "The disk is full: settings and logs can't be saved in " + folder + ". Delete something there.";
    case EACCES:
    case EPERM:
    case EROFS:
        return "Settings and logs can't be saved in " + folder + ": make it writable, or copy Skyvane elsewhere.";
    default:
        return "";
    }
}

} // namespace skyvane

#include "core/files/SafeFile.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace skyvane {
namespace {

constexpr const char* unfinishedEnding = ".new";

std::string followLinks(const std::string& path) {
    const std::unique_ptr<char, decltype(&std::free)> real(realpath(path.c_str(), nullptr), &std::free);
    return real ? real.get() : path;
}

bool endsWith(const std::string& text, const std::string& ending) {
    return text.size() >= ending.size() && text.compare(text.size() - ending.size(), ending.size(), ending) == 0;
}

/// Streams tell no reasons; the last call beneath them does.
int reasonOfFailure() {
    return errno != 0 ? errno : EIO;
}

/// 0 or an errno.
int writeStream(const std::string& path, const std::function<void(std::ostream&)>& write) {
    errno = 0;
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    if (out)
        write(out);
    out.close();
    return out ? 0 : reasonOfFailure();
}

} // namespace

bool flushToDisk(const std::string& path) {
    const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0)
        return false;
    const bool flushed = ::fsync(file) == 0;
    ::close(file);
    return flushed;
}

int saveFileSafely(const std::string& path, const std::function<void(std::ostream&)>& write) {
    const std::string target = followLinks(path);
    const std::string beside = target + unfinishedEnding;
    struct stat former;
    const bool replaces = ::stat(target.c_str(), &former) == 0;
    if (replaces && ::access(target.c_str(), W_OK) != 0)
        return errno;
    if (replaces && !S_ISREG(former.st_mode))
        return writeStream(target, write); // a device or a pipe stays what it is
    if (const int error = writeStream(beside, write)) {
        ::unlink(beside.c_str());
        return error;
    }
    if (replaces)
        ::chmod(beside.c_str(), former.st_mode & 07777);
    errno = 0;
    return replaceFile(beside, target) ? 0 : reasonOfFailure();
}

int saveFileSafely(const std::string& path, const std::string& text) {
    return saveFileSafely(path, [&text](std::ostream& out) { out << text; });
}

bool replaceFile(const std::string& fresh, const std::string& path) {
    if (flushToDisk(fresh) && std::rename(fresh.c_str(), path.c_str()) == 0)
        return true;
    const int error = errno;
    std::remove(fresh.c_str());
    errno = error;
    return false;
}

void removeUnfinishedFiles(const std::string& folder, const std::string& ending) {
    std::error_code error;
    for (std::filesystem::directory_iterator it(folder, error), end; !error && it != end; it.increment(error))
        if (endsWith(it->path().filename().string(), ending + unfinishedEnding)) {
            std::error_code ignored;
            std::filesystem::remove(it->path(), ignored);
        }
}

std::optional<std::string> readWholeFile(const std::string& path, std::size_t mostBytes) {
    struct stat status;
    if (::stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    std::ifstream in(path, std::ios::binary);
    std::string text(mostBytes + 1, '\0');
    in.read(text.data(), static_cast<std::streamsize>(text.size()));
    const auto count = static_cast<std::size_t>(in.gcount());
    if (in.bad() || !in.eof() || count > mostBytes)
        return std::nullopt;
    text.resize(count);
    return text;
}

std::string whyNotWritten(int error) {
    switch (error) {
    case 0:
        return {};
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return "There is no room left on the disk.";
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
        return "It is not allowed to write there.";
    case ENOENT:
    case ENOTDIR:
        return "The folder does not exist.";
    default:
        return "The disk reports an error.";
    }
}

} // namespace skyvane

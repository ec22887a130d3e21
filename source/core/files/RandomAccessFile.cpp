#include "core/files/RandomAccessFile.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace skyvane {

// Without O_NONBLOCK the opening of a pipe would wait for its other end.
RandomAccessFile::RandomAccessFile(const std::string& path)
    : descriptor_(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)) {
    struct stat status;
    if (descriptor_ >= 0 && (fstat(descriptor_, &status) != 0 || !S_ISREG(status.st_mode))) {
        close(descriptor_);
        descriptor_ = -1;
    }
    if (descriptor_ >= 0)
        size_ = static_cast<uint64_t>(status.st_size);
}

RandomAccessFile::~RandomAccessFile() {
    if (descriptor_ >= 0)
        close(descriptor_);
}

bool RandomAccessFile::read(uint64_t offset, void* bytes, size_t count) const {
    char* out = static_cast<char*>(bytes);
    while (count > 0) {
        const ssize_t got = pread(descriptor_, out, count, static_cast<off_t>(offset));
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            return false;
        out += got;
        offset += static_cast<uint64_t>(got);
        count -= static_cast<size_t>(got);
    }
    return true;
}

} // namespace skyvane

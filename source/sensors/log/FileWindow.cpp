#include "sensors/log/FileWindow.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace skyvane {
namespace {

constexpr size_t WindowBytes = 65536;

} // namespace

FileWindow::FileWindow(const std::string& path) : handle_(::open(path.c_str(), O_RDONLY | O_CLOEXEC)) {
    struct stat status {};
    if (handle_ < 0)
        return;
    if (fstat(handle_, &status) == 0 && S_ISREG(status.st_mode)) {
        size_ = static_cast<uint64_t>(status.st_size);
    } else {
        ::close(handle_);
        handle_ = -1;
    }
}

FileWindow::~FileWindow() {
    if (handle_ >= 0)
        ::close(handle_);
}

void FileWindow::guard() {
    if (handle_ >= 0)
        flock(handle_, LOCK_SH | LOCK_NB);
}

size_t FileWindow::read(uint64_t offset, uint8_t* bytes, size_t count) const {
    size_t filled = 0;
    while (filled < count) {
        const ssize_t got = ::pread(handle_, bytes + filled, count - filled, static_cast<off_t>(offset + filled));
        if (got > 0)
            filled += static_cast<size_t>(got);
        else if (got == 0 || errno != EINTR)
            break;
    }
    return filled;
}

const uint8_t* FileWindow::slideTo(uint64_t offset, size_t count) {
    if (offset > size_ || count > size_ - offset)
        return nullptr;
    const auto wanted = static_cast<size_t>(std::min<uint64_t>(std::max(WindowBytes, count), size_ - offset));
    if (wanted > bytes_.size())
        bytes_.resize(std::max(wanted, WindowBytes));
    begin_ = offset;
    filled_ = read(offset, bytes_.data(), wanted);
    return filled_ >= count ? bytes_.data() : nullptr;
}

} // namespace skyvane

#include "sensors/log/LogWriter.h"

#include "sensors/log/LogLayout.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

namespace skyvane {
namespace {

constexpr size_t UsualFrameBytes = 65536;

} // namespace

// Opened without truncating: a log that another writer holds must stay as it is.
LogWriter::LogWriter(const std::string& path)
    : handle_(::open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0660)), waiting_(LogHeader::bytesOfNewLog()) {
    if (handle_ >= 0 && flock(handle_, LOCK_EX | LOCK_NB) == 0 && ftruncate(handle_, 0) == 0) {
        flush();
    } else {
        fail_ = true;
        waiting_.clear();
    }
    waiting_.reserve(UsualFrameBytes);
}

LogWriter::~LogWriter() {
    close();
}

void LogWriter::add(unsigned timeMs, ISensorData::Type type, const void* form, uint32_t length) {
    const uint64_t end = size_ + waiting_.size() + LogRecordHeader::Bytes + length;
    if (end > LogLargestOffset || length > LogLargestRecord)
        fail_ = true;
    if (fail_)
        return;
    const size_t place = waiting_.size();
    const auto* bytes = static_cast<const uint8_t*>(form);
    waiting_.resize(place + LogRecordHeader::Bytes);
    LogRecordHeader{timeMs, static_cast<uint32_t>(type), length}.write(waiting_.data() + place);
    waiting_.insert(waiting_.end(), bytes, bytes + length);
}

void LogWriter::flush() {
    for (size_t written = 0; handle_ >= 0 && written < waiting_.size();) {
        const ssize_t count = ::write(handle_, waiting_.data() + written, waiting_.size() - written);
        if (count >= 0) {
            written += static_cast<size_t>(count);
        } else if (errno != EINTR) {
            fail_ = true;
            break;
        }
    }
    size_ += waiting_.size();
    waiting_.clear();
}

void LogWriter::close() {
    if (handle_ < 0)
        return;
    flush();
    ::close(handle_);
    handle_ = -1;
}

} // namespace skyvane

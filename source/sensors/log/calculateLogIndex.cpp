#include "core/log/Logger.h"
#include "core/time/Time.h"
#include "sensors/log/FileWindow.h"
#include "sensors/log/LogIndex.h"
#include "sensors/log/LogLayout.h"
#include "sensors/log/ReadAhead.h"
#include "sensors/records/Attitude_Data.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace skyvane {
namespace {

/// The file descriptor through which the index is written; it holds the log's lock.
class LogEnd {
public:
    explicit LogEnd(const std::string& path) : handle_(::open(path.c_str(), O_WRONLY | O_CLOEXEC)) {}
    ~LogEnd() {
        if (handle_ >= 0)
            ::close(handle_);
    }
    LogEnd(const LogEnd&) = delete;
    LogEnd& operator=(const LogEnd&) = delete;

    bool isGood() const { return handle_ >= 0; }
    /// False while it is being recorded. Beside those who play it: two that index at a time write the same bytes.
    bool lock() { return flock(handle_, LOCK_SH | LOCK_NB) == 0; }
    bool resize(uint64_t size) { return ftruncate(handle_, static_cast<off_t>(size)) == 0; }
    bool write(const uint8_t* bytes, size_t length, uint64_t offset) {
        for (size_t written = 0; written < length;) {
            const ssize_t count =
                ::pwrite(handle_, bytes + written, length - written, static_cast<off_t>(offset + written));
            if (count < 0 && errno != EINTR)
                return false;
            written += count > 0 ? static_cast<size_t>(count) : 0;
        }
        return true;
    }

private:
    int handle_;
};

constexpr size_t UsualRecordBytes = 32;

bool isKey(const uint8_t* form, uint32_t length) {
    Attitude_Data attitude;
    attitude.deserialize(const_cast<uint8_t*>(form), static_cast<int>(length));
    return attitude.resetKind > Attitude_Data::NoReset;
}

/// The index of a log is written before the header tells of it. One that was cut short by a crash looks like a GPS
/// record of a length that none has: the count so far, the first time, the first offset.
bool isForsakenIndex(const LogRecordHeader& record, const LogIndex& index, const LogHeader& header) {
    return !index.samples.empty() && record.timeMs == index.samples.size() && record.type == 0 &&
           record.length == header.length;
}

/// Walks through the records and gives the offset at which they end.
uint64_t scan(const FileWindow& file, const LogHeader& header, LogIndex& index) {
    ReadAhead bytesAhead(file);
    uint64_t place = header.length;
    unsigned firstMs = 0;
    // Room for the usual records, so that the list moves seldom; memory that isn't needed is never touched.
    index.samples.reserve(file.size() / UsualRecordBytes);
    while (const uint8_t* bytes = place <= LogLargestOffset ? bytesAhead.at(place, LogRecordHeader::Bytes) : nullptr) {
        const LogRecordHeader record = LogRecordHeader::read(bytes);
        if (isForsakenIndex(record, index, header))
            return place;
        const uint64_t form = place + LogRecordHeader::Bytes;
        if (record.length > file.size() - form)
            break;
        if (index.samples.empty())
            firstMs = record.timeMs;
        if (record.type == ISensorData::Attitude && record.length >= Attitude_Data::FormLength)
            if (const uint8_t* attitude = bytesAhead.at(form, Attitude_Data::FormLength))
                if (isKey(attitude, Attitude_Data::FormLength))
                    index.keys.push_back(static_cast<uint32_t>(index.samples.size()));
        index.samples.push_back({TimeDiff(record.timeMs, firstMs), static_cast<uint32_t>(place)});
        place = form + record.length;
    }
    return file.size();
}

// Numbers and samples are written as they lie in memory.
static_assert(__BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__, "a log's numbers are little-endian");
static_assert(sizeof(LogIndex::Sample) == 8, "a sample is its two numbers");

/// Writes a log's numbers one behind the other.
class NumberWriter {
public:
    NumberWriter(LogEnd& end, uint64_t offset) : end_(end), offset_(offset) {}

    void add(size_t number) {
        const auto form = static_cast<uint32_t>(number);
        write(&form, sizeof form);
    }
    /// Elements of numbers alone.
    template <class List>
    void addAll(const List& list) {
        write(list.data(), list.size() * sizeof(*list.data()));
    }
    /// All of it is written.
    bool isGood() const { return good_; }

private:
    void write(const void* bytes, size_t length) {
        good_ = good_ && end_.write(static_cast<const uint8_t*>(bytes), length, offset_);
        offset_ += length;
    }

    LogEnd& end_;
    uint64_t offset_;
    bool good_ = true;
};

bool writeIndex(LogEnd& end, const LogIndex& index, uint64_t offset) {
    NumberWriter out(end, offset);
    out.add(index.samples.size());
    out.addAll(index.samples);
    out.add(index.keys.size());
    out.addAll(index.keys);
    return out.isGood();
}

/// Back to a log without an index when it can't be written.
bool append(LogEnd& end, const LogIndex& index, uint64_t offset) {
    if (end.resize(offset) && writeIndex(end, index, offset)) {
        NumberWriter header(end, LogIndexOffsetPlace);
        header.add(offset);
        if (header.isGood())
            return true;
    }
    end.resize(offset);
    return false;
}

/// False, with a word, for a log that needs no index or can't get one.
bool canIndex(FileWindow& file, LogEnd& end, LogHeader& header, const std::string& path) {
    std::string trouble;
    if (!file.isGood())
        trouble = "Error: Unable to open LogFile: " + path + "\n";
    else if (!header.read(file))
        trouble = "Error: " + path + " is too short for a LogFile.\n";
    else if (header.version > LogVersion)
        trouble = "Error: LogFileVersion " + std::to_string(header.version) + " not supported.\n";
    else if (header.indexOffset != 0)
        trouble = "Error: Index already calculated.";
    else if (!end.isGood())
        trouble = "Error: The index of " + path + " can't be written.\n";
    else if (!end.lock())
        trouble = "Error: " + path + " is still being recorded.\n";
    if (!trouble.empty())
        logText(trouble, Logger::ToConsole);
    return trouble.empty();
}

} // namespace

LogIndex calculateLogIndex(const std::string& path) {
    LogEnd end(path);
    FileWindow file(path);
    LogHeader header;
    LogIndex index;
    if (!canIndex(file, end, header, path))
        return index;
    const uint64_t length = scan(file, header, index);
    if (length <= LogLargestOffset && append(end, index, length))
        return index;
    logText("Error: The index of " + path + " can't be written.\n");
    return LogIndex();
}

} // namespace skyvane

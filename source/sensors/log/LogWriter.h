#pragma once

#include "sensors/records/ISensorData.h"

#include <cstdint>
#include <string>
#include <vector>

namespace skyvane {

/// Writes a log's header and records; the index comes later, by calculateLogIndex().
///
/// While a log is written it is locked: nobody else writes to it or indexes it. What was flushed survives the end of
/// the program, however it ends.
class LogWriter {
public:
    /// Replaces the file. fail() tells when it can't be made, or another writer is at it.
    explicit LogWriter(const std::string& path);
    ~LogWriter();
    LogWriter(const LogWriter&) = delete;
    LogWriter& operator=(const LogWriter&) = delete;

    /// Keeps a record for the next flush. Nothing after a failure, or when the log would grow too long.
    void add(unsigned timeMs, ISensorData::Type type, const void* form, uint32_t length);
    void flush();
    void close();
    /// The file couldn't be made, the disk is full, or the log has reached its largest size.
    bool fail() const { return fail_; }

private:
    int handle_;
    bool fail_ = false;
    uint64_t size_ = 0;
    std::vector<uint8_t> waiting_;
};

} // namespace skyvane

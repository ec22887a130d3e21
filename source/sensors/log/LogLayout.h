#pragma once

#include "sensors/records/ISensorData.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <endian.h>
#include <vector>

namespace skyvane {

class FileWindow;

/// The layout of a flight log: header, records, index. docs/formats/flight-log.md describes it; all numbers are
/// little-endian and unsigned, of 32 bits.

/// Logs above this version are refused.
constexpr uint32_t LogVersion = 1;
/// Where the header holds the offset of the index.
constexpr long LogIndexOffsetPlace = 4;
/// Offsets are read back as signed numbers.
constexpr uint64_t LogLargestOffset = 0x7fffffff;
/// What the log can hold of a record; a length beyond is a lie.
constexpr uint32_t LogLargestRecord = 16 * 1024 * 1024;

/// A log has millions of numbers: each is moved as a whole. Both take four bytes that are there.
inline uint32_t readLogNumber(const uint8_t* bytes) {
    uint32_t number;
    std::memcpy(&number, bytes, sizeof number);
    return le32toh(number);
}
inline void writeLogNumber(uint8_t* bytes, uint32_t number) {
    number = htole32(number);
    std::memcpy(bytes, &number, sizeof number);
}

struct LogHeader {
    uint32_t version = 0;
    uint32_t indexOffset = 0; ///< 0 before the index was written.
    std::vector<ISensorData::Type> types;
    uint64_t length = 0; ///< Of the header: where the records begin.

    /// False when the file is too short for it. Numbers in the list that are no types are passed over.
    bool read(FileWindow& file);
    /// The bytes of a new log's header, which lists all types.
    static std::vector<uint8_t> bytesOfNewLog();
};

/// What stands before the byte form of each record.
struct LogRecordHeader {
    static constexpr size_t Bytes = 12;

    uint32_t timeMs = 0; ///< MilliSecs() at writing
    uint32_t type = 0;
    uint32_t length = 0;

    /// Of Bytes bytes.
    static LogRecordHeader read(const uint8_t* bytes) {
        return {readLogNumber(bytes), readLogNumber(bytes + 4), readLogNumber(bytes + 8)};
    }
    /// Writes Bytes bytes.
    void write(uint8_t* bytes) const {
        writeLogNumber(bytes, timeMs);
        writeLogNumber(bytes + 4, type);
        writeLogNumber(bytes + 8, length);
    }
};

} // namespace skyvane

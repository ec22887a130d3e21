#pragma once

#include "core/bytes/ByteWriter.h"
#include "sensors/FormText.h"
#include "sensors/records/Attitude_Data.h"
#include "sensors/records/Heading_Data.h"

#include <fstream>
#include <iterator>
#include <string>

namespace skyvane {

/// Builds the bytes of a log by hand.
class LogBytes {
public:
    static constexpr uint32_t HeaderBytes = 96;

    explicit LogBytes(uint32_t version = 1, uint32_t typeCount = 21) {
        number(version).number(0).number(typeCount);
        for (uint32_t type = 0; type < 21; ++type)
            number(type);
    }
    LogBytes& number(uint32_t value) {
        uint8_t bytes[4];
        ByteWriter(bytes, 4).little(value);
        return append({bytes, bytes + 4});
    }
    LogBytes& append(const Bytes& more) {
        bytes_.insert(bytes_.end(), more.begin(), more.end());
        return *this;
    }
    LogBytes& record(uint32_t timeMs, uint32_t type, const Bytes& form) {
        return number(timeMs).number(type).number(static_cast<uint32_t>(form.size())).append(form);
    }
    LogBytes& heading(uint32_t timeMs, double degrees) {
        Heading_Data heading(degrees, timeMs);
        return record(timeMs, ISensorData::Heading, formOf(heading));
    }
    LogBytes& attitude(uint32_t timeMs, int resetKind) {
        Attitude_Data attitude(Matrix3x3(), timeMs, resetKind);
        return record(timeMs, ISensorData::Attitude, formOf(attitude));
    }
    const Bytes& bytes() const { return bytes_; }
    uint32_t size() const { return static_cast<uint32_t>(bytes_.size()); }
    void save(const std::string& path) const { saveBytes(path, bytes_); }

    static void saveBytes(const std::string& path, const Bytes& bytes) {
        std::ofstream(path, std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()), static_cast<long>(bytes.size()));
    }
    static Bytes load(const std::string& path) {
        std::ifstream in(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }

private:
    Bytes bytes_;
};

} // namespace skyvane

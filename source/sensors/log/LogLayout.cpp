#include "sensors/log/LogLayout.h"

#include "core/bytes/ByteWriter.h"
#include "sensors/log/FileWindow.h"

#include <array>

namespace skyvane {
namespace {

constexpr size_t FixedHeaderBytes = 12;
constexpr size_t TypeBytes = 4;

} // namespace

bool LogHeader::read(FileWindow& file) {
    const uint8_t* bytes = file.at(0, FixedHeaderBytes);
    if (!bytes)
        return false;
    version = readLogNumber(bytes);
    indexOffset = readLogNumber(bytes + 4);
    const uint32_t typeCount = readLogNumber(bytes + 8);
    length = FixedHeaderBytes + uint64_t{typeCount} * TypeBytes;
    if (length > file.size())
        return false;
    types.clear();
    std::array<bool, ISensorData::TypeCount> listed{};
    for (uint64_t place = FixedHeaderBytes; place < length; place += TypeBytes) {
        const uint8_t* number = file.at(place, TypeBytes);
        if (!number)
            return false;
        const auto type = static_cast<int32_t>(readLogNumber(number));
        if (!ISensorData::isType(type) || listed[static_cast<size_t>(type)])
            continue;
        listed[static_cast<size_t>(type)] = true;
        types.push_back(static_cast<ISensorData::Type>(type));
    }
    return true;
}

std::vector<uint8_t> LogHeader::bytesOfNewLog() {
    std::vector<uint8_t> bytes(FixedHeaderBytes + TypeBytes * ISensorData::TypeCount);
    ByteWriter out(bytes.data(), bytes.size());
    out.little(LogVersion);
    out.little(uint32_t{0});
    out.little(static_cast<uint32_t>(ISensorData::TypeCount));
    for (uint32_t type = 0; type < ISensorData::TypeCount; ++type)
        out.little(type);
    return bytes;
}

} // namespace skyvane

#include "chart/areas/AreaFile.h"

#include "chart/areas/AreaTree.h"
#include "core/bytes/ByteReader.h"
#include "core/bytes/ByteWriter.h"

#include <algorithm>
#include <filesystem>
#include <ostream>

namespace skyvane {
namespace {

constexpr unsigned WindowBytes = 64 * 1024;
constexpr unsigned RefillBytes = 256;
constexpr size_t HeadBytes = 8;

/// Opening a pipe would wait for its other end.
std::string regularFile(const std::string& path) {
    std::error_code error;
    return std::filesystem::is_regular_file(path, error) ? path : std::string();
}

template <class T>
void write(std::ostream& out, T value) {
    char bytes[sizeof(T)];
    ByteWriter(bytes, sizeof bytes).little(value);
    out.write(bytes, sizeof bytes);
}

} // namespace

AreaFileReader::AreaFileReader(const std::string& path, const AreaFileKind& kind)
    : kind_(kind), file_(regularFile(path), WindowBytes, RefillBytes) {
    if (!file_.good())
        return;
    const size_t width = static_cast<size_t>(kind.versionBytes);
    if (const uint8_t* bytes = take(width)) {
        ByteReader in(bytes, width);
        good_ = kind.version == (width == 1 ? in.little<uint8_t>() : in.little<int32_t>());
    }
}

const uint8_t* AreaFileReader::take(size_t count) {
    file_.update();
    const uint8_t* bytes = file_.data();
    return file_.skip(count) ? bytes : nullptr;
}

bool AreaFileReader::nextRecord() {
    for (size_t units = 0; takeUnits(units);) {
    }
    const uint8_t* head = good_ && !damaged_ ? take(HeadBytes) : nullptr;
    if (!head)
        return false;
    ByteReader in(head, HeadBytes);
    const uint32_t number = in.little<uint32_t>();
    const int32_t count = in.little<int32_t>();
    if (number > static_cast<uint32_t>(LastAreaIndex))
        return false;
    const uint64_t held = remaining() / kind_.unitBytes;
    damaged_ = count < 0 || static_cast<uint64_t>(count) > held;
    number_ = static_cast<int>(number);
    unitsLeft_ = count < 0 ? 0 : std::min(static_cast<uint64_t>(count), held);
    return count >= 0;
}

const uint8_t* AreaFileReader::takeUnits(size_t& units) {
    if (unitsLeft_ == 0)
        return nullptr;
    file_.update();
    units = static_cast<size_t>(std::min<uint64_t>(unitsLeft_, file_.available() / kind_.unitBytes));
    if (units == 0) { // the file has become shorter meanwhile
        unitsLeft_ = 0;
        damaged_ = true;
        return nullptr;
    }
    const uint8_t* bytes = file_.data();
    file_.skip(units * kind_.unitBytes);
    unitsLeft_ -= units;
    return bytes;
}

void writeAreaFileVersion(std::ostream& out, const AreaFileKind& kind) {
    if (kind.versionBytes == 1)
        write(out, static_cast<uint8_t>(kind.version));
    else
        write(out, static_cast<int32_t>(kind.version));
}

void writeAreaRecordHead(std::ostream& out, int number, int count) {
    write(out, static_cast<int32_t>(number));
    write(out, static_cast<int32_t>(count));
}

void writeAreaUnit(std::ostream& out, int id) {
    write(out, static_cast<int32_t>(id));
}

} // namespace skyvane

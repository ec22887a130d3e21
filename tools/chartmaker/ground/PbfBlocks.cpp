#include "chartmaker/ground/PbfBlocks.h"

#include <cstdint>
#include <fstream>
#include <optional>

namespace skyvane {
namespace {

/// The longest head that the format allows.
constexpr uint32_t longestHead = 64 * 1024;
/// Of a field in a head: its number in the upper bits, its kind in the lower three.
constexpr uint64_t sizeField = 3 << 3, lengthKind = 2, kindBits = 7;

/// A number of the wire format: seven bits a byte, the lowest first.
std::optional<uint64_t> takeNumber(const std::string& bytes, size_t& at) {
    uint64_t value = 0;
    for (int shift = 0; shift < 64 && at < bytes.size(); shift += 7) {
        const auto byte = static_cast<unsigned char>(bytes[at++]);
        value |= static_cast<uint64_t>(byte & 0x7f) << shift;
        if (byte < 0x80)
            return value;
    }
    return std::nullopt;
}

/// How many bytes follow a block's head.
std::optional<uint64_t> sizeOf(const std::string& head) {
    std::optional<uint64_t> size;
    for (size_t at = 0; at < head.size();) {
        const auto field = takeNumber(head, at), value = takeNumber(head, at);
        if (!field || !value)
            return std::nullopt;
        if (*field == sizeField)
            size = value;
        else if ((*field & kindBits) == lengthKind && *value <= head.size() - at)
            at += static_cast<size_t>(*value);
        else if ((*field & kindBits) != 0)
            return std::nullopt;
    }
    return size;
}

} // namespace

bool isWholePbf(const std::string& path) {
    std::ifstream in(path, std::ios::binary | std::ios::ate);
    const std::streamoff end = in.tellg();
    in.seekg(0);
    while (in && in.tellg() < end) {
        unsigned char length[4] = {};
        in.read(reinterpret_cast<char*>(length), sizeof length);
        const uint32_t count = uint32_t{length[0]} << 24 | length[1] << 16 | length[2] << 8 | length[3];
        if (!in || count > longestHead)
            return false;
        std::string head(count, '\0');
        in.read(head.data(), count);
        const auto size = sizeOf(head);
        if (!in || !size || *size > static_cast<uint64_t>(end - in.tellg()))
            return false;
        in.seekg(static_cast<std::streamoff>(*size), std::ios::cur);
    }
    return in && end > 0;
}

} // namespace skyvane

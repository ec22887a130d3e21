#include "core/files/PngHead.h"

namespace skyvane {

std::optional<PngHead> readPngHead(ByteReader& in) {
    constexpr uint64_t signature = 0x89504e470d0a1a0a, firstChunk = 0x0000000d49484452; // 13 bytes of IHDR
    const bool isPicture = in.big<uint64_t>() == signature && in.big<uint64_t>() == firstChunk;
    PngHead head;
    head.width = in.big<uint32_t>();
    head.height = in.big<uint32_t>();
    head.form = uint64_t{in.big<uint32_t>()} << 8;
    head.form |= in.big<uint8_t>();
    in.big<uint32_t>(); // checksum
    if (!isPicture || in.fail() || head.width == 0 || head.height == 0)
        return std::nullopt;
    return head;
}

} // namespace skyvane

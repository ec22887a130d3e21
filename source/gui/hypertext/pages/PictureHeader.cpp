#include "gui/hypertext/pages/PictureHeader.h"

#include "core/bytes/ByteReader.h"

namespace skyvane {
namespace {

constexpr uint64_t pngSignature = 0x89504e470d0a1a0aull;
constexpr uint32_t headerChunk = 0x49484452; // IHDR

} // namespace

irr::core::dimension2d<irr::u32> readPictureSize(const std::string& file) {
    ByteReader in(file.data(), file.size());
    const bool isPng = in.big<uint64_t>() == pngSignature;
    in.big<uint32_t>(); // the chunk's length
    const bool isHeader = in.big<uint32_t>() == headerChunk;
    const auto width = in.big<uint32_t>();
    const auto height = in.big<uint32_t>();
    if (in.fail() || !isPng || !isHeader || width == 0 || height == 0 || width > longestPictureEdge ||
        height > longestPictureEdge)
        return {0, 0};
    return {width, height};
}

} // namespace skyvane

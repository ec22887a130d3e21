#include "gui/hypertext/pages/PictureHeader.h"

#include "core/files/PngHead.h"

namespace skyvane {

irr::core::dimension2d<irr::u32> readPictureSize(const std::string& file) {
    ByteReader in(file.data(), file.size());
    const std::optional<PngHead> head = readPngHead(in);
    if (!head || head->width > longestPictureEdge || head->height > longestPictureEdge)
        return {0, 0};
    return {head->width, head->height};
}

} // namespace skyvane

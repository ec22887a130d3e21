#include "core/files/StoredPng.h"

#include "core/files/PngHead.h"

#include <algorithm>

namespace skyvane {
namespace {

constexpr size_t PixelBytes = 4;
constexpr uint32_t LongestSide = 8192;

/// What the chunks of picture data hold, one after another.
class PictureData {
public:
    explicit PictureData(ByteReader chunks) : chunks_(chunks) {}

    bool read(uint8_t* to, size_t count) {
        while (count > 0) {
            if (left_ == 0 && !nextChunk())
                return false;
            const size_t step = std::min(count, left_);
            std::memcpy(to, bytes_, step);
            to += step;
            bytes_ += step;
            count -= step;
            left_ -= step;
        }
        return true;
    }

private:
    bool nextChunk() {
        constexpr uint32_t pictureData = 0x49444154; // IDAT
        constexpr size_t checksumBytes = 4;
        while (left_ == 0 && chunks_.remaining() > 0) {
            const auto length = chunks_.big<uint32_t>(), name = chunks_.big<uint32_t>();
            bytes_ = chunks_.take(length);
            chunks_.take(checksumBytes);
            left_ = bytes_ && name == pictureData ? length : 0;
        }
        return left_ > 0;
    }

    ByteReader chunks_;
    const uint8_t* bytes_ = nullptr;
    size_t left_ = 0;
};

/// The bytes of a deflate stream whose blocks are all stored.
class StoredBlocks {
public:
    explicit StoredBlocks(ByteReader chunks) : data_(chunks) {
        uint8_t head[2];
        good_ = data_.read(head, sizeof head);
    }

    bool read(uint8_t* to, size_t count) {
        while (count > 0 && good_) {
            if (left_ == 0 && !nextBlock())
                return false;
            const size_t step = std::min(count, left_);
            good_ = data_.read(to, step);
            to += step;
            count -= step;
            left_ -= step;
        }
        return good_;
    }

private:
    bool nextBlock() {
        constexpr uint8_t kindBits = 6;
        uint8_t head[5];
        while (left_ == 0 && !last_ && good_) {
            good_ = data_.read(head, sizeof head) && (head[0] & kindBits) == 0;
            last_ = head[0] & 1;
            left_ = head[1] + 256u * head[2];
            good_ = good_ && left_ + head[3] + 256u * head[4] == 65535u;
        }
        return good_ && left_ > 0;
    }

    PictureData data_;
    size_t left_ = 0;
    bool last_ = false;
    bool good_;
};

/// From red, green, blue, alpha to the engine's order, in place.
void orderRow(uint32_t* pixels, uint32_t width) {
    for (uint32_t x = 0; x < width; ++x) {
        uint8_t rgba[PixelBytes];
        std::memcpy(rgba, pixels + x, PixelBytes);
        pixels[x] = uint32_t{rgba[3]} << 24 | uint32_t{rgba[0]} << 16 | uint32_t{rgba[1]} << 8 | rgba[2];
    }
}

} // namespace

StoredPng::StoredPng(const uint8_t* bytes, size_t size) : chunks_(bytes), size_(size) {
    constexpr uint64_t plainRgba = 0x0806000000;
    ByteReader reader(bytes, size);
    const std::optional<PngHead> head = readPngHead(reader);
    if (!head || head->form != plainRgba || head->width > LongestSide || head->height > LongestSide ||
        (uint64_t{head->width} * PixelBytes + 1) * head->height > reader.remaining())
        return;
    chunks_ = bytes + (size - reader.remaining());
    size_ = reader.remaining();
    width_ = head->width;
    height_ = head->height;
}

bool StoredPng::copyPixels(uint32_t* pixels) const {
    StoredBlocks blocks(ByteReader(chunks_, size_));
    for (uint32_t y = 0; y < height_; ++y, pixels += width_) {
        uint8_t filter = 0;
        if (!blocks.read(&filter, 1) || filter != 0 ||
            !blocks.read(reinterpret_cast<uint8_t*>(pixels), width_ * PixelBytes))
            return false;
        orderRow(pixels, width_);
    }
    return isStored();
}

} // namespace skyvane

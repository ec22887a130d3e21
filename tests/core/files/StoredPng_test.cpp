#include "core/files/StoredPng.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>
#include <zlib.h>

namespace skyvane {
namespace {

using Bytes = std::vector<uint8_t>;

constexpr uint32_t Width = 300, Height = 150;

void addBig(Bytes& out, uint32_t number) {
    for (int shift = 24; shift >= 0; shift -= 8)
        out.push_back(static_cast<uint8_t>(number >> shift));
}

void addChunk(Bytes& out, const std::string& name, const Bytes& content) {
    addBig(out, static_cast<uint32_t>(content.size()));
    out.insert(out.end(), name.begin(), name.end());
    out.insert(out.end(), content.begin(), content.end());
    addBig(out, 0);
}

uint8_t channel(uint32_t x, uint32_t y, uint32_t which) {
    return static_cast<uint8_t>(x * 7 + y * 3 + which * 50);
}

/// A picture of Width x Height, its data in chunks of 1000 bytes.
Bytes makePng(int compression, uint8_t filter = 0) {
    Bytes rows;
    for (uint32_t y = 0; y < Height; ++y) {
        rows.push_back(filter);
        for (uint32_t x = 0; x < Width; ++x)
            for (uint32_t which = 0; which < 4; ++which)
                rows.push_back(channel(x, y, which));
    }
    Bytes packed(compressBound(rows.size()));
    uLongf length = packed.size();
    compress2(packed.data(), &length, rows.data(), rows.size(), compression);
    Bytes png{0x89, 'P', 'N', 'G', '\r', '\n', 0x1a, '\n'}, head;
    addBig(head, Width);
    addBig(head, Height);
    head.insert(head.end(), {8, 6, 0, 0, 0});
    addChunk(png, "IHDR", head);
    addChunk(png, "tEXt", {'x'});
    for (size_t at = 0; at < length; at += 1000)
        addChunk(png, "IDAT", Bytes(packed.data() + at, packed.data() + std::min<size_t>(at + 1000, length)));
    addChunk(png, "IEND", {});
    return png;
}

bool readsTo(const Bytes& png, std::vector<uint32_t>& pixels) {
    const StoredPng picture(png.data(), png.size());
    pixels.assign(size_t{picture.getWidth()} * picture.getHeight(), 0);
    return picture.isStored() && picture.copyPixels(pixels.data());
}

TEST(StoredPng, GivesEachPixelInTheEnginesOrder) {
    std::vector<uint32_t> pixels;
    ASSERT_TRUE(readsTo(makePng(0), pixels));
    ASSERT_EQ(pixels.size(), Width * Height);
    for (uint32_t y = 0; y < Height; ++y)
        for (uint32_t x = 0; x < Width; ++x)
            ASSERT_EQ(pixels[y * Width + x], uint32_t{channel(x, y, 3)} << 24 | uint32_t{channel(x, y, 0)} << 16 |
                                                 uint32_t{channel(x, y, 1)} << 8 | channel(x, y, 2));
}

TEST(StoredPng, LeavesOtherPicturesToADecoder) {
    std::vector<uint32_t> pixels;
    EXPECT_FALSE(readsTo(makePng(9), pixels));
    EXPECT_FALSE(readsTo(makePng(0, 1), pixels));
    Bytes interlaced = makePng(0);
    interlaced[28] = 1;
    EXPECT_FALSE(readsTo(interlaced, pixels));
    EXPECT_FALSE(readsTo({}, pixels));
}

TEST(StoredPng, BelievesNoDamagedFile) {
    std::vector<uint32_t> pixels;
    const Bytes png = makePng(0);
    for (size_t length = 0; length + 100 < png.size(); length += 997)
        EXPECT_FALSE(readsTo(Bytes(png.data(), png.data() + length), pixels)) << length;
    Bytes huge = png;
    huge[16] = 0x7f;
    EXPECT_FALSE(readsTo(huge, pixels));
    for (size_t i = 0; i < 200; ++i) {
        Bytes flipped = png;
        flipped[i * png.size() / 200] ^= 0xff;
        readsTo(flipped, pixels); // the sanitizers watch
    }
}

} // namespace
} // namespace skyvane

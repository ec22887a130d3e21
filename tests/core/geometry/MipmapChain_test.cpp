#include "core/geometry/MipmapChain.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

TEST(MipmapChain, halvesDownToOnePixelWeightingColoursByAlpha) {
    // Opaque red beside clear green: the mean is half as opaque, and still red.
    const uint32_t picture[] = {0xffff0000, 0x0000ff00, 0xff0000ff, 0xff0000ff, //
                                0xffff0000, 0x0000ff00, 0xff0000ff, 0xff0000ff};
    EXPECT_EQ(makeMipmapChain(picture, 4, 2), (std::vector<uint32_t>{0x80ff0000, 0xff0000ff, 0xc05500aa}));
}

TEST(MipmapChain, takesOddAndThinPicturesAndNone) {
    const std::vector<uint32_t> plain(5 * 3, 0xff102030);
    EXPECT_EQ(makeMipmapChain(plain.data(), 5, 3), (std::vector<uint32_t>(2 + 1, 0xff102030)));
    EXPECT_EQ(makeMipmapChain(plain.data(), 1, 8), (std::vector<uint32_t>(4 + 2 + 1, 0xff102030)));
    EXPECT_TRUE(makeMipmapChain(plain.data(), 1, 1).empty());
    EXPECT_TRUE(makeMipmapChain(nullptr, 4, 4).empty());
    EXPECT_EQ(makeMipmapChain(std::vector<uint32_t>(4, 0x00abcdef).data(), 2, 2), (std::vector<uint32_t>{0x00abcdef}));
}

} // namespace
} // namespace skyvane

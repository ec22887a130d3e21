#pragma once

#include <cstddef>
#include <cstdint>

namespace skyvane {

/// A PNG picture of 8-bit RGBA that was stored without compression and filters, as the build stores the program's
/// textures: its pixels lie in the file as they are, and reading them takes a copy. Other pictures are left to a real
/// decoder; so is the judgement on checksums, which are passed over here.
///
///     StoredPng picture(bytes, size);
///     if (picture.isStored()) picture.copyPixels(pixels);   // getWidth() * getHeight() of them
class StoredPng {
public:
    /// The bytes outlive it.
    StoredPng(const uint8_t* bytes, size_t size);

    /// The head says so, and the file is large enough to be true.
    bool isStored() const { return width_ > 0; }
    uint32_t getWidth() const { return width_; }
    uint32_t getHeight() const { return height_; }
    /// Rows from the top, each pixel 0xAARRGGBB. False for a picture that is compressed, filtered or cut after all; the
    /// pixels are then worth nothing.
    bool copyPixels(uint32_t* pixels) const;

private:
    const uint8_t* chunks_;
    size_t size_;
    uint32_t width_ = 0, height_ = 0;
};

} // namespace skyvane

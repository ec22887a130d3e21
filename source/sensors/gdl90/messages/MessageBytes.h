#pragma once

#include "core/bytes/ByteReader.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace skyvane {

/// The bytes of one message by their offset from its id. What lies behind the end, even in part, reads as zero, or as
/// missing where a field can be. Owns nothing.
class MessageBytes {
public:
    MessageBytes(const uint8_t* bytes, size_t count) : bytes_(bytes), count_(count) {}

    const uint8_t* data() const { return bytes_; }
    size_t count() const { return count_; }
    uint8_t byte(size_t offset) const { return offset < count_ ? bytes_[offset] : 0; }
    uint8_t highNibble(size_t offset) const { return byte(offset) >> 4; }
    uint8_t lowNibble(size_t offset) const { return byte(offset) & 0x0F; }

    template <class T>
    T big(size_t offset) const {
        return from(offset).big<T>();
    }
    template <class T>
    T little(size_t offset) const {
        return from(offset).little<T>();
    }
    uint32_t big24(size_t offset) const {
        return static_cast<uint32_t>(byte(offset) << 16 | byte(offset + 1) << 8 | byte(offset + 2));
    }
    int32_t signedBig24(size_t offset) const {
        const auto value = static_cast<int32_t>(big24(offset));
        return value < 0x800000 ? value : value - 0x1000000;
    }
    /// A 16-bit word; nothing behind the end, and for the word that marks a missing value.
    std::optional<uint16_t> word(size_t offset, uint16_t missing) const {
        const auto value = big<uint16_t>(offset);
        if (offset + sizeof(value) > count_ || value == missing)
            return std::nullopt;
        return value;
    }
    /// The same as a signed number times a scale.
    std::optional<double> scaled(size_t offset, double scale, uint16_t missing = 0x7FFF) const {
        const std::optional<uint16_t> value = word(offset, missing);
        return value ? std::optional<double>(static_cast<int16_t>(*value) * scale) : std::nullopt;
    }
    /// The printable ASCII characters but the blanks.
    void readName(size_t offset, size_t length, std::string& name) const {
        name.clear();
        for (size_t i = offset; i < std::min(offset + length, count_); ++i)
            if (bytes_[i] > ' ' && bytes_[i] < 0x7F)
                name += static_cast<char>(bytes_[i]);
    }

private:
    ByteReader from(size_t offset) const {
        const size_t start = std::min(offset, count_);
        return {bytes_ + start, count_ - start};
    }

    const uint8_t* bytes_;
    size_t count_;
};

} // namespace skyvane

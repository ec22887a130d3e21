#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

namespace skyvane {

/// The cursor through which all bytes from outside are read: it never leaves its range.
///
/// Reading past the end gives zero values and sets fail(), which stays set. Owns nothing; the bytes outlive it.
///
///     ByteReader in(datagram, length);
///     const auto count = in.little<uint32_t>();
///     if (in.fail() || in.remaining() / 53 < count) return false;
class ByteReader {
public:
    ByteReader(const void* bytes, size_t count) : cursor_(static_cast<const uint8_t*>(bytes)), end_(cursor_ + count) {}

    /// Integers, float and double in the given byte order, unaligned.
    template <class T>
    T little() {
        return read<T>(false);
    }
    template <class T>
    T big() {
        return read<T>(true);
    }

    /// The next n bytes in place, null when fewer remain.
    const uint8_t* take(size_t n) {
        if (n > remaining()) {
            fail_ = true;
            cursor_ = end_;
            return nullptr;
        }
        const uint8_t* here = cursor_;
        cursor_ += n;
        return here;
    }

    size_t remaining() const { return static_cast<size_t>(end_ - cursor_); }
    bool fail() const { return fail_; }

private:
    template <class T>
    T read(bool bigEndian) {
        static_assert(std::is_arithmetic<T>::value && !std::is_same<T, bool>::value, "plain numbers only");
        const uint8_t* bytes = take(sizeof(T));
        T value{};
        if (!bytes)
            return value;
        uint8_t ordered[sizeof(T)];
        for (size_t i = 0; i < sizeof(T); ++i)
            ordered[i] = bytes[bigEndian ? sizeof(T) - 1 - i : i];
        std::memcpy(&value, ordered, sizeof(T));
        return value;
    }

    const uint8_t* cursor_;
    const uint8_t* end_;
    bool fail_ = false;
};

} // namespace skyvane

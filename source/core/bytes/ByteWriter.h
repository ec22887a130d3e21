#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

namespace skyvane {

/// Writes numbers in a stated byte order into a buffer of the caller's; what doesn't fit sets fail() and is left out.
class ByteWriter {
public:
    ByteWriter(void* buffer, size_t capacity)
        : begin_(static_cast<uint8_t*>(buffer)), cursor_(begin_), end_(begin_ + capacity) {}

    template <class T>
    void little(T value) {
        write(value, false);
    }
    template <class T>
    void big(T value) {
        write(value, true);
    }
    void bytes(const void* source, size_t n) {
        if (uint8_t* room = reserve(n))
            std::memcpy(room, source, n);
    }
    void zeros(size_t n) {
        if (uint8_t* room = reserve(n))
            std::memset(room, 0, n);
    }

    size_t size() const { return static_cast<size_t>(cursor_ - begin_); }
    bool fail() const { return fail_; }

private:
    uint8_t* reserve(size_t n) {
        if (n > static_cast<size_t>(end_ - cursor_)) {
            fail_ = true;
            return nullptr;
        }
        uint8_t* room = cursor_;
        cursor_ += n;
        return room;
    }
    template <class T>
    void write(T value, bool bigEndian) {
        static_assert(std::is_arithmetic<T>::value && !std::is_same<T, bool>::value, "plain numbers only");
        uint8_t* room = reserve(sizeof(T));
        if (!room)
            return;
        uint8_t ordered[sizeof(T)];
        std::memcpy(ordered, &value, sizeof(T));
        for (size_t i = 0; i < sizeof(T); ++i)
            room[i] = ordered[bigEndian ? sizeof(T) - 1 - i : i];
    }

    uint8_t* begin_;
    uint8_t* cursor_;
    uint8_t* end_;
    bool fail_ = false;
};

} // namespace skyvane

#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

namespace skyvane {

/// Datagrams in a row in memory that is reserved once: a 32-bit length and that many bytes each. No lock of its own.
class DatagramQueue {
public:
    explicit DatagramQueue(size_t capacity) : bytes_(capacity) {}

    /// False, and the datagram is lost, when its length + 4 isn't below the free space.
    bool push(const char* datagram, uint32_t length) {
        if (size_t{length} + sizeof(length) >= bytes_.size() - fill_)
            return false;
        std::memcpy(bytes_.data() + fill_, &length, sizeof(length));
        std::memcpy(bytes_.data() + fill_ + sizeof(length), datagram, length);
        fill_ += sizeof(length) + length;
        return true;
    }
    /// The length of the next datagram, whose bytes stay in place until clear(); 0 when all were read.
    uint32_t next(char*& datagram) {
        if (position_ == fill_)
            return 0;
        uint32_t length;
        std::memcpy(&length, bytes_.data() + position_, sizeof(length));
        datagram = bytes_.data() + position_ + sizeof(length);
        position_ += sizeof(length) + length;
        return length;
    }
    void clear() { fill_ = position_ = 0; }

private:
    std::vector<char> bytes_;
    size_t fill_ = 0;
    size_t position_ = 0;
};

} // namespace skyvane

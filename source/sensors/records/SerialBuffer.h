#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace skyvane {

/// Where a record of variable length writes its byte form: 1024 bytes at first, then grown to the larger of twice its
/// size and the need, so that it soon allocates nothing any more.
class SerialBuffer {
public:
    uint8_t* reserve(size_t need) {
        if (need > bytes_.size())
            bytes_.resize(std::max(need, 2 * bytes_.size()));
        return bytes_.data();
    }
    size_t size() const { return bytes_.size(); }

private:
    std::vector<uint8_t> bytes_ = std::vector<uint8_t>(1024);
};

} // namespace skyvane

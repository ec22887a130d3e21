#include "core/files/PartialFile.h"

#include <algorithm>
#include <cstring>

namespace skyvane {

PartialFile::PartialFile(const std::string& path, unsigned bufferSize, unsigned long refillThreshold)
    : in_(path, std::ios::binary | std::ios::ate), buffer_(std::max(bufferSize, 1u)), refillThreshold_(refillThreshold),
      good_(in_.is_open() && in_.tellg() >= 0) {
    if (!good_)
        return;
    fileSize_ = static_cast<uint64_t>(in_.tellg());
    in_.seekg(0);
    fill();
}

void PartialFile::update() {
    if (available() > refillThreshold_ || fileOffset_ >= fileSize_)
        return;
    std::memmove(buffer_.data(), data(), available());
    valid_ = available();
    position_ = 0;
    fill();
}

void PartialFile::fill() {
    in_.read(reinterpret_cast<char*>(buffer_.data() + valid_), static_cast<std::streamsize>(buffer_.size() - valid_));
    const size_t count = static_cast<size_t>(in_.gcount());
    valid_ += count;
    fileOffset_ += count;
    if (!in_)
        fileSize_ = fileOffset_; // shorter than it said: nothing more to wait for
}

bool PartialFile::skip(size_t count) {
    const bool enough = count <= available();
    position_ += std::min(count, available());
    return enough;
}

} // namespace skyvane

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace skyvane {

/// A regular file that is read at any place. It stays open as long as the object lives; a pipe or a folder isn't
/// opened.
class RandomAccessFile {
public:
    explicit RandomAccessFile(const std::string& path);
    ~RandomAccessFile();
    RandomAccessFile(const RandomAccessFile&) = delete;
    RandomAccessFile& operator=(const RandomAccessFile&) = delete;

    bool good() const { return descriptor_ >= 0; }
    /// When it was opened.
    uint64_t getSize() const { return size_; }
    /// False when the file doesn't have all of these bytes (any more); what was read of them is there then.
    bool read(uint64_t offset, void* bytes, size_t count) const;

private:
    int descriptor_;
    uint64_t size_ = 0;
};

} // namespace skyvane

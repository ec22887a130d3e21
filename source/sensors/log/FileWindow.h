#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace skyvane {

/// Reads a file through a window that slides to where bytes are asked for, so that a walk through a large file costs
/// about as much as reading it. The size is that of the opening.
class FileWindow {
public:
    explicit FileWindow(const std::string& path);
    ~FileWindow();
    FileWindow(const FileWindow&) = delete;
    FileWindow& operator=(const FileWindow&) = delete;

    bool isGood() const { return handle_ >= 0; }
    /// Keeps those who ask for the file's lock from writing to it while the window is open.
    void guard();
    uint64_t size() const { return size_; }
    /// Copies up to `count` bytes from `offset` on, and gives how many there were. Any thread.
    size_t read(uint64_t offset, uint8_t* bytes, size_t count) const;
    /// `count` bytes from `offset` on; null when they aren't all there. They stay until the next call.
    const uint8_t* at(uint64_t offset, size_t count) {
        if (offset >= begin_ && offset - begin_ <= filled_ && count <= filled_ - (offset - begin_))
            return bytes_.data() + (offset - begin_);
        return slideTo(offset, count);
    }

private:
    const uint8_t* slideTo(uint64_t offset, size_t count);

    int handle_;
    uint64_t size_ = 0;
    uint64_t begin_ = 0; ///< The offset in the file of the first byte in bytes_.
    size_t filled_ = 0;
    std::vector<uint8_t> bytes_;
};

} // namespace skyvane

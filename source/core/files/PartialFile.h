#pragma once

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <string>
#include <vector>

namespace skyvane {

/// Reads a large file front to back through a window in memory.
///
///     PartialFile file(path, 1000000, 250000);
///     while (file.good() && !file.finished()) {
///         file.update();                                     // at least 250000 bytes, or the file's rest
///         ByteReader record(file.data(), file.available());
///         ...
///         file.skip(bytesRead);
///     }
class PartialFile {
public:
    /// The threshold is the number of unread bytes below which update() fills the window again.
    PartialFile(const std::string& path, unsigned bufferSize, unsigned long refillThreshold);

    /// Moves the unread bytes to the front and fills up behind them, when at most the threshold is left and the file
    /// has more. Invalidates data().
    void update();

    /// The unread bytes of the window.
    const uint8_t* data() const { return buffer_.data() + position_; }
    size_t available() const { return valid_ - position_; }
    /// On by that many bytes, at most to the end of the window. False when fewer were there.
    bool skip(size_t count);

    /// False when the file couldn't be opened.
    bool good() const { return good_; }
    /// Nothing unread is left in the window.
    bool finished() const { return position_ == valid_; }
    /// Where in the file data() stands.
    uint64_t getOffsetInFile() const { return fileOffset_ - available(); }
    uint64_t getFileSize() const { return fileSize_; }

private:
    void fill();

    std::ifstream in_;
    std::vector<uint8_t> buffer_;
    size_t refillThreshold_;
    size_t position_ = 0;
    size_t valid_ = 0;
    uint64_t fileOffset_ = 0; ///< Bytes read from the file so far.
    uint64_t fileSize_ = 0;
    bool good_;
};

} // namespace skyvane

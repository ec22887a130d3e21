#pragma once

#include <array>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <mutex>
#include <vector>

namespace skyvane {

class FileWindow;

/// Walks a file from front to back while a thread of its own reads the blocks that come next: reading and what is done
/// with the bytes take the time of the slower one, not of both. Where no thread can be had, it reads by itself.
///
/// All but the reading belongs to the thread that made it.
class ReadAhead {
public:
    /// The most bytes of one question.
    static constexpr size_t MostBytes = 4096;

    /// The file outlives it.
    explicit ReadAhead(const FileWindow& file);
    ~ReadAhead();
    ReadAhead(const ReadAhead&) = delete;
    ReadAhead& operator=(const ReadAhead&) = delete;

    /// `count` bytes from `offset` on; null when they aren't all there, or lie before the offset of the last call. They
    /// stay until the next call.
    const uint8_t* at(uint64_t offset, size_t count) {
        if (offset >= begin_ && offset + count <= end_)
            return bytes_ + (offset - begin_);
        return advanceTo(offset, count);
    }

private:
    static constexpr size_t BlockBytes = 512 * 1024;
    static constexpr size_t BlockCount = 3;

    /// A piece of the file behind room for what is left of the piece before.
    struct Block {
        std::vector<uint8_t> room;
        size_t filled = 0;
    };

    static void* readBlocks(void* self);
    const uint8_t* advanceTo(uint64_t offset, size_t count);
    Block& blockOf(uint64_t number) { return blocks_[number % BlockCount]; }
    void fill(uint64_t number);
    /// Waits until the thread has read the block.
    void awaitBlock(uint64_t number);
    /// The thread may fill the places of the blocks before this one.
    void release(uint64_t number);

    const FileWindow& file_;
    std::array<Block, BlockCount> blocks_; ///< The thread's from their release until they are filled.
    unsigned long thread_ = 0;
    bool started_ = false;

    uint64_t next_ = 0; ///< Number of the block behind the present one.
    const uint8_t* bytes_ = nullptr;
    uint64_t begin_ = 0, end_ = 0; ///< Offsets in the file of what bytes_ holds.

    std::mutex mutex_; ///< Guards what follows. Leaf.
    std::condition_variable changed_;
    uint64_t filled_ = 0;   ///< Blocks read so far.
    uint64_t released_ = 0; ///< Blocks that aren't needed any more.
    bool stop_ = false;
};

} // namespace skyvane

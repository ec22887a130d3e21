#include "sensors/log/ReadAhead.h"

#include "core/threads/Threads.h"
#include "sensors/log/FileWindow.h"

#include <pthread.h>

#include <cstring>

namespace skyvane {

ReadAhead::ReadAhead(const FileWindow& file) : file_(file) {
    for (Block& block : blocks_)
        block.room.resize(MostBytes + BlockBytes);
    started_ = createThread(thread_, &ReadAhead::readBlocks, this, true, 0);
}

ReadAhead::~ReadAhead() {
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        stop_ = true;
    }
    changed_.notify_all();
    if (started_)
        pthread_join(thread_, nullptr);
}

void* ReadAhead::readBlocks(void* self) {
    auto& reader = *static_cast<ReadAhead*>(self);
    for (uint64_t number = 0; number * BlockBytes < reader.file_.size(); ++number) {
        {
            std::unique_lock<std::mutex> lock(reader.mutex_);
            reader.changed_.wait(lock, [&] { return reader.stop_ || number - reader.released_ < BlockCount; });
            if (reader.stop_)
                return nullptr;
        }
        reader.fill(number);
        {
            const std::lock_guard<std::mutex> lock(reader.mutex_);
            reader.filled_ = number + 1;
        }
        reader.changed_.notify_all();
    }
    return nullptr;
}

void ReadAhead::fill(uint64_t number) {
    Block& block = blockOf(number);
    block.filled = file_.read(number * BlockBytes, block.room.data() + MostBytes, BlockBytes);
}

void ReadAhead::awaitBlock(uint64_t number) {
    if (!started_)
        return fill(number);
    std::unique_lock<std::mutex> lock(mutex_);
    changed_.wait(lock, [&] { return filled_ > number; });
}

void ReadAhead::release(uint64_t number) {
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        released_ = number;
    }
    changed_.notify_all();
}

const uint8_t* ReadAhead::advanceTo(uint64_t offset, size_t count) {
    if (count > MostBytes || offset < begin_ || offset > file_.size() || count > file_.size() - offset)
        return nullptr;
    while (offset + count > end_ && next_ * BlockBytes < file_.size()) {
        awaitBlock(next_);
        Block& block = blockOf(next_);
        const size_t kept = offset < end_ ? static_cast<size_t>(end_ - offset) : 0;
        uint8_t* bytes = block.room.data() + MostBytes - kept;
        if (kept > 0)
            std::memcpy(bytes, bytes_ + (offset - begin_), kept);
        bytes_ = bytes;
        begin_ = next_ * BlockBytes - kept;
        end_ = next_ * BlockBytes + block.filled;
        release(next_++);
        if (block.filled < BlockBytes)
            break; // the file's last, or one of a file that has shrunk
    }
    return offset >= begin_ && offset + count <= end_ ? bytes_ + (offset - begin_) : nullptr;
}

} // namespace skyvane

#pragma once

#include <cstddef>
#include <functional>

namespace skyvane {

class ThreadPool;

/// What a loop does and what happens meanwhile.
struct ParallelLoop {
    size_t count = 0;
    int threads = 0;
    /// Called once for each index below the count, on the pool's threads; false ends the loop.
    std::function<bool(size_t)> work;
    /// Called on the calling thread some twenty times a second with the number of indices done, and after the last;
    /// false ends the loop.
    std::function<bool(size_t)> poll;
};

/// Runs the loop and comes back when no thread works on it any more. Work that the pool takes no thread for, or that
/// has no threads, is done on the calling thread. True when every call of work and poll was.
bool runParallelLoop(ThreadPool& pool, const ParallelLoop& loop);

} // namespace skyvane

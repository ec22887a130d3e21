#pragma once

#include "core/threads/Threads.h"

#include <memory>

namespace skyvane {

class PooledThread;

/// Threads that are used again. It grows when none is idle and never shrinks. Safe from every thread.
class ThreadPool {
public:
    /// With that many idle threads.
    explicit ThreadPool(unsigned count);
    /// Tells all threads to end and waits 10 ms. A busy one ends by itself when its function returns.
    ~ThreadPool();
    ThreadPool(const ThreadPool&) = delete;
    ThreadPool& operator=(const ThreadPool&) = delete;

    /// Runs function(argument) on an idle or a new thread. The result only looks; null when no thread could be made,
    /// and the function then doesn't run.
    PooledThread* startThreadedFunction(ThreadFunction function, void* argument);

private:
    class Threads;
    std::shared_ptr<Threads> threads_; ///< Outlives the pool for as long as a busy thread needs it.
};

/// The process's pool, which lives as long as the process.
ThreadPool& globalThreadPool();

} // namespace skyvane

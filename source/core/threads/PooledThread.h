#pragma once

#include "core/threads/Threads.h"

#include <memory>
#include <mutex>

namespace skyvane {

class PooledThread;

/// Where a pooled thread goes when its function is done.
class IThreadHome {
public:
    virtual ~IThreadHome() = default;
    virtual void returnThread(const std::shared_ptr<PooledThread>& thread) = 0;
};

/// One thread of a ThreadPool. It looks each millisecond whether there is something to do, runs it, goes back to its
/// home, and ends once it was told to. The thread itself keeps the object alive.
class PooledThread {
public:
    /// Starts the thread with its first work, or idle when function is null. Null when no thread could be made.
    static std::shared_ptr<PooledThread> start(std::shared_ptr<IThreadHome> home, ThreadFunction function,
                                               void* argument);

    /// Work for an idle thread.
    void assign(ThreadFunction function, void* argument);
    /// The thread ends as soon as it runs nothing.
    void requestExit();

private:
    PooledThread() = default;
    static void* pooledThreadMain(void* self);
    void run(const std::shared_ptr<PooledThread>& self);
    void finishWork(const std::shared_ptr<PooledThread>& self);

    std::shared_ptr<IThreadHome> home_;
    unsigned long handle_ = 0;

    std::mutex mutex_; ///< Guards what follows. Comes after the pool's mutex.
    ThreadFunction function_ = nullptr;
    void* argument_ = nullptr;
    bool exit_ = false;
};

} // namespace skyvane

#include "core/threads/PooledThread.h"

#include <chrono>
#include <thread>
#include <utility>

namespace skyvane {

std::shared_ptr<PooledThread> PooledThread::start(std::shared_ptr<IThreadHome> home, ThreadFunction function,
                                                  void* argument) {
    const std::shared_ptr<PooledThread> thread(new PooledThread);
    thread->home_ = std::move(home);
    thread->assign(function, argument);
    auto share = std::make_unique<std::shared_ptr<PooledThread>>(thread);
    if (!createThread(thread->handle_, pooledThreadMain, share.get(), false, 0))
        return nullptr;
    share.release(); // the thread's now
    return thread;
}

void PooledThread::assign(ThreadFunction function, void* argument) {
    const std::lock_guard<std::mutex> lock(mutex_);
    function_ = function;
    argument_ = argument;
}

void PooledThread::requestExit() {
    const std::lock_guard<std::mutex> lock(mutex_);
    exit_ = true;
}

void* PooledThread::pooledThreadMain(void* share) {
    const std::unique_ptr<std::shared_ptr<PooledThread>> self(static_cast<std::shared_ptr<PooledThread>*>(share));
    (*self)->run(*self);
    return nullptr;
}

void PooledThread::run(const std::shared_ptr<PooledThread>& self) {
    for (;;) {
        ThreadFunction function = nullptr;
        void* argument = nullptr;
        {
            const std::lock_guard<std::mutex> lock(mutex_);
            if (exit_)
                return;
            function = function_;
            argument = argument_;
        }
        if (function) {
            function(argument);
            finishWork(self);
        }
        // Not Delay(): waiting workers must not move a clock that a test has put in place.
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

void PooledThread::finishWork(const std::shared_ptr<PooledThread>& self) {
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        function_ = nullptr;
        argument_ = nullptr;
        if (exit_)
            return;
    }
    home_->returnThread(self);
}

} // namespace skyvane

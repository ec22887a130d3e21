#include "core/threads/ThreadPool.h"

#include "core/log/Logger.h"
#include "core/threads/PooledThread.h"

#include <chrono>
#include <list>
#include <set>
#include <thread>

namespace skyvane {

class ThreadPool::Threads : public IThreadHome, public std::enable_shared_from_this<Threads> {
public:
    void addIdle() {
        const std::lock_guard<std::mutex> lock(mutex_);
        if (auto thread = PooledThread::start(shared_from_this(), nullptr, nullptr))
            idle_.push_back(std::move(thread));
    }

    PooledThread* startFunction(ThreadFunction function, void* argument) {
        const std::lock_guard<std::mutex> lock(mutex_);
        std::shared_ptr<PooledThread> thread;
        if (idle_.empty()) {
            Logger::logStringConsole("new Thread");
            thread = PooledThread::start(shared_from_this(), function, argument);
            if (!thread)
                return nullptr;
        } else {
            Logger::logStringConsole("reuse Thread");
            thread = std::move(idle_.front());
            idle_.pop_front();
            thread->assign(function, argument);
        }
        return busy_.insert(std::move(thread)).first->get();
    }

    void returnThread(const std::shared_ptr<PooledThread>& thread) override {
        const std::lock_guard<std::mutex> lock(mutex_);
        if (busy_.erase(thread) == 0)
            return; // the pool has gone meanwhile
        Logger::logStringConsole("returnThread");
        idle_.push_back(thread);
    }

    /// Also cuts the ring of threads that hold their home and a home that holds its threads.
    void dismiss() {
        const std::lock_guard<std::mutex> lock(mutex_);
        for (const auto& thread : idle_)
            thread->requestExit();
        for (const auto& thread : busy_)
            thread->requestExit();
        idle_.clear();
        busy_.clear();
    }

private:
    std::mutex mutex_; ///< Guards both lists. Comes before the mutex of a thread.
    std::list<std::shared_ptr<PooledThread>> idle_;
    std::set<std::shared_ptr<PooledThread>> busy_;
};

ThreadPool::ThreadPool(unsigned count) : threads_(std::make_shared<Threads>()) {
    for (unsigned i = 0; i < count; ++i)
        threads_->addIdle();
}

ThreadPool::~ThreadPool() {
    threads_->dismiss();
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
}

PooledThread* ThreadPool::startThreadedFunction(ThreadFunction function, void* argument) {
    return threads_->startFunction(function, argument);
}

ThreadPool& globalThreadPool() {
    static ThreadPool pool(1);
    return pool;
}

} // namespace skyvane

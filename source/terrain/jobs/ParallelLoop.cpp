#include "terrain/jobs/ParallelLoop.h"

#include "core/threads/ThreadPool.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>

namespace skyvane {
namespace {

constexpr std::chrono::milliseconds PollInterval(50);

/// What the threads of a loop share. It lies on the stack of the caller, who waits for the last of them.
class LoopState {
public:
    explicit LoopState(const ParallelLoop& loop) : loop_(loop) {}

    static void* loopMain(void* self) {
        auto* state = static_cast<LoopState*>(self);
        while (state->doNext()) {
        }
        state->leave();
        return nullptr;
    }

    /// False when there is nothing more to do.
    bool doNext() {
        const size_t index = stopped_ ? loop_.count : next_++;
        if (index >= loop_.count)
            return false;
        if (!loop_.work(index))
            stopped_ = true;
        ++done_;
        return true;
    }

    void enter() {
        const std::lock_guard<std::mutex> lock(mutex_);
        ++working_;
    }
    void leave() {
        const std::lock_guard<std::mutex> lock(mutex_);
        --working_;
        ended_.notify_all(); // under the lock: the state goes as soon as it is free
    }
    /// True when no thread works any more.
    bool waitForEnd() {
        std::unique_lock<std::mutex> lock(mutex_);
        return ended_.wait_for(lock, PollInterval, [this] { return working_ == 0; });
    }

    void poll() {
        if (!loop_.poll(done_))
            stopped_ = true;
    }
    bool isComplete() const { return !stopped_; }

private:
    const ParallelLoop& loop_;
    std::atomic<size_t> next_{0};
    std::atomic<size_t> done_{0};
    std::atomic<bool> stopped_{false};
    std::mutex mutex_; ///< Guards working_. Leaf.
    std::condition_variable ended_;
    int working_ = 0;
};

} // namespace

bool runParallelLoop(ThreadPool& pool, const ParallelLoop& loop) {
    LoopState state(loop);
    bool helped = false;
    for (int i = 0; i < loop.threads && static_cast<size_t>(i) < loop.count; ++i) {
        state.enter();
        if (pool.startThreadedFunction(&LoopState::loopMain, &state)) {
            helped = true;
        } else {
            state.leave();
            break;
        }
    }
    if (!helped)
        while (state.doNext())
            state.poll();
    while (!state.waitForEnd())
        state.poll();
    state.poll();
    return state.isComplete();
}

} // namespace skyvane

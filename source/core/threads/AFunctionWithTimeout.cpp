#include "core/threads/AFunctionWithTimeout.h"

#include "core/threads/Threads.h"
#include "core/time/Time.h"

#include <csignal>
#include <mutex>
#include <pthread.h>

namespace skyvane {

/// Shared with the worker, so that either may go first.
struct AFunctionWithTimeout::State {
    std::mutex mutex; ///< Guards what follows. Leaf: nothing else is locked under it.
    AFunctionWithTimeout* owner = nullptr;
    bool running = false;
    bool ownerGone = false;
};

namespace {

extern "C" void endThisThread(int) {
    pthread_exit(nullptr);
}

void installEndSignal() {
    struct sigaction action = {};
    action.sa_handler = endThisThread;
    sigemptyset(&action.sa_mask);
    sigaction(SIGUSR1, &action, nullptr);
}

void setEndSignalBlocked(bool blocked) {
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGUSR1);
    pthread_sigmask(blocked ? SIG_BLOCK : SIG_UNBLOCK, &signals, nullptr);
}

} // namespace

AFunctionWithTimeout::AFunctionWithTimeout() : state_(std::make_shared<State>()) {
    state_->owner = this;
}

AFunctionWithTimeout::~AFunctionWithTimeout() = default;

// A frame of its own with nothing to destroy: the unwinding that starts in the signal's handler passes through calls
// that are declared not to throw, which a frame with destructors would answer by std::terminate.
__attribute__((noinline)) void AFunctionWithTimeout::runUnblocked(AFunctionWithTimeout& work) {
    setEndSignalBlocked(false);
    work.actualFunction();
    setEndSignalBlocked(true); // from here the end of the run is told
}

void* AFunctionWithTimeout::functionWithTimeoutMain(void* share) {
    const std::unique_ptr<std::shared_ptr<State>> held(static_cast<std::shared_ptr<State>*>(share));
    State& state = **held;
    runUnblocked(*state.owner);
    bool ownerGone = false;
    {
        const std::lock_guard<std::mutex> lock(state.mutex);
        state.running = false;
        ownerGone = state.ownerGone;
    }
    if (ownerGone)
        state.owner->cleanUp();
    return nullptr;
}

bool AFunctionWithTimeout::executeWithTimeout(double seconds, bool leaveRunning) {
    const std::shared_ptr<State> state = state_; // the object may go with its worker
    installEndSignal();
    state->running = true;
    auto share = std::make_unique<std::shared_ptr<State>>(state);
    unsigned long thread = 0;
    setEndSignalBlocked(true); // the worker starts with it blocked, until it owns its share
    const bool made = createThread(thread, functionWithTimeoutMain, share.get(), true, 0);
    setEndSignalBlocked(false);
    if (!made) {
        if (leaveRunning)
            cleanUp();
        return false;
    }
    share.release(); // the worker's now

    const double end = Secs() + seconds;
    for (;;) {
        {
            const std::lock_guard<std::mutex> lock(state->mutex);
            if (!state->running)
                break;
            if (Secs() >= end) {
                state->ownerGone = leaveRunning;
                leaveRunning ? pthread_detach(thread) : pthread_kill(thread, SIGUSR1);
                break;
            }
        }
        Delay(10);
    }
    if (state->ownerGone)
        return false;
    pthread_join(thread, nullptr);
    return !state->running;
}

} // namespace skyvane

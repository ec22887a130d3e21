#include "core/threads/AParallelFunction.h"

#include "core/threads/ThreadPool.h"
#include "core/time/Time.h"

#include <mutex>
#include <utility>

namespace skyvane {

/// What the worker and the owner share; whoever leaves last frees it.
struct AParallelFunction::Shared {
    std::mutex mutex; ///< Guards what follows. Leaf: nothing else is locked under it.
    AParallelFunction* owner = nullptr;
    std::unique_ptr<IValue> input; ///< Replaced only while nothing runs.
    std::unique_ptr<IValue> result;
    bool running = false;
    bool abandoned = false;
};

AParallelFunction::AParallelFunction(double exitWait) : shared_(std::make_shared<Shared>()), exitWait_(exitWait) {
    shared_->owner = this;
}

AParallelFunction::~AParallelFunction() {
    endWork();
}

bool AParallelFunction::execute(ThreadPool* pool, std::unique_ptr<IValue> input) {
    {
        const std::lock_guard<std::mutex> lock(shared_->mutex);
        if (shared_->running || shared_->abandoned)
            return false;
        shared_->running = true;
        shared_->input = std::move(input);
    }
    auto share = std::make_unique<std::shared_ptr<Shared>>(shared_);
    unsigned long handle = 0;
    const bool started = pool ? pool->startThreadedFunction(parallelFunctionMain, share.get()) != nullptr
                              : createThread(handle, parallelFunctionMain, share.get(), false, 0);
    if (started) {
        share.release(); // the worker's now
        return true;
    }
    const std::lock_guard<std::mutex> lock(shared_->mutex);
    shared_->running = false;
    shared_->input.reset();
    return false;
}

void* AParallelFunction::parallelFunctionMain(void* share) {
    const std::unique_ptr<std::shared_ptr<Shared>> held(static_cast<std::shared_ptr<Shared>*>(share));
    Shared& shared = **held;
    AParallelFunction* owner = nullptr;
    {
        const std::lock_guard<std::mutex> lock(shared.mutex);
        if (shared.abandoned)
            return nullptr;
        owner = shared.owner;
    }
    std::unique_ptr<IValue> result = owner->actualFunction(shared.input.get());

    const std::lock_guard<std::mutex> lock(shared.mutex);
    shared.running = false;
    shared.result.swap(result);
    return nullptr;
}

bool AParallelFunction::isFinished() const {
    const std::lock_guard<std::mutex> lock(shared_->mutex);
    return !shared_->running;
}

IValue* AParallelFunction::getResult() const {
    const std::lock_guard<std::mutex> lock(shared_->mutex);
    return shared_->running ? nullptr : shared_->result.get();
}

IValue* AParallelFunction::waitForFinish(double seconds) {
    const double end = Secs() + seconds;
    while (!isFinished()) {
        if (Secs() >= end)
            return nullptr;
        Delay(1);
    }
    return getResult();
}

void AParallelFunction::endWork() {
    if (ended_)
        return;
    ended_ = true;
    waitForFinish(exitWait_);
    const std::lock_guard<std::mutex> lock(shared_->mutex);
    shared_->abandoned = true;
}

} // namespace skyvane

#include "displays/labels/ConcurrentRectangleGradientDescent.h"

#include "core/threads/ThreadPool.h"
#include "core/time/Time.h"

#include <algorithm>

namespace skyvane {
namespace {

/// So often labels that are stuck are sent elsewhere, and get so many rounds to settle.
constexpr int rescues = 2;
constexpr unsigned roundsAfterRescue = 60;

} // namespace

ConcurrentRectangleGradientDescent::ConcurrentRectangleGradientDescent(const irr::core::rect<double>& spaceLimit)
    : solver_(spaceLimit) {}

ConcurrentRectangleGradientDescent::~ConcurrentRectangleGradientDescent() {
    abort();
}

bool ConcurrentRectangleGradientDescent::start(unsigned maxIterations, double step, double threshold,
                                               bool anchorsAreObstacles) {
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        if (running_)
            return false;
        aborted_ = false;
        running_ = true;
    }
    maxIterations_ = maxIterations;
    step_ = step;
    threshold_ = threshold;
    anchorsAreObstacles_ = anchorsAreObstacles;
    if (globalThreadPool().startThreadedFunction(threadMain, this))
        return true;
    const std::lock_guard<std::mutex> lock(mutex_);
    running_ = false;
    return false;
}

void ConcurrentRectangleGradientDescent::abort() {
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        aborted_ = running_;
    }
    while (isRunning())
        Delay(1);
}

bool ConcurrentRectangleGradientDescent::isRunning() const {
    const std::lock_guard<std::mutex> lock(mutex_);
    return running_;
}

bool ConcurrentRectangleGradientDescent::isAborted() const {
    const std::lock_guard<std::mutex> lock(mutex_);
    return aborted_;
}

void* ConcurrentRectangleGradientDescent::threadMain(void* self) {
    static_cast<ConcurrentRectangleGradientDescent*>(self)->run();
    return nullptr;
}

void ConcurrentRectangleGradientDescent::run() {
    const auto aborted = [this] { return isAborted(); };
    solver_.optimize(maxIterations_, step_, threshold_, anchorsAreObstacles_, aborted);
    for (int i = 0; i < rescues && !aborted() && solver_.freeStuckLabels(aborted); ++i)
        solver_.optimize(std::min(maxIterations_, roundsAfterRescue), step_, threshold_, anchorsAreObstacles_, aborted);
    const std::lock_guard<std::mutex> lock(mutex_);
    running_ = false;
}

} // namespace skyvane

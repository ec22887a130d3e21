#pragma once

#include "displays/labels/RectangleGradientDescent.h"

#include <mutex>

namespace skyvane {

/// Solves labels on a thread of the pool while the display goes on, and frees those that got stuck.
///
/// The owner calls everything from one thread. While isRunning() the labels belong to the solver: neither add, read nor
/// clear them before it has ended or abort() has returned.
class ConcurrentRectangleGradientDescent {
public:
    explicit ConcurrentRectangleGradientDescent(const irr::core::rect<double>& spaceLimit);
    /// Aborts.
    ~ConcurrentRectangleGradientDescent();
    ConcurrentRectangleGradientDescent(const ConcurrentRectangleGradientDescent&) = delete;
    ConcurrentRectangleGradientDescent& operator=(const ConcurrentRectangleGradientDescent&) = delete;

    /// The arguments are those of RectangleGradientDescent::optimize. False when a run is still going on, or the pool
    /// has no thread for it.
    bool start(unsigned maxIterations, double step, double threshold, bool anchorsAreObstacles);
    /// Ends a run within one round and waits for that, looking every millisecond.
    void abort();
    bool isRunning() const;
    RectangleGradientDescent& getRectangleGradientDescent() { return solver_; }

private:
    static void* threadMain(void* self);
    void run();
    bool isAborted() const;

    RectangleGradientDescent solver_;
    unsigned maxIterations_ = 0;
    double step_ = 0.0;
    double threshold_ = 0.0;
    bool anchorsAreObstacles_ = false;
    mutable std::mutex mutex_; ///< guards the two flags; a leaf
    bool running_ = false;
    bool aborted_ = false;
};

} // namespace skyvane

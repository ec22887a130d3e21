#pragma once

#include "core/threads/IValue.h"

#include <memory>

namespace skyvane {

class ThreadPool;

/// One piece of work at a time on another thread, with a limit to how long its end is waited for.
///
///     class Retriever : public AParallelFunction {
///     public:
///         Retriever() : AParallelFunction(1.0) {}
///         ~Retriever() override { endWork(); }
///     protected:
///         std::unique_ptr<IValue> actualFunction(IValue* input) override;
///     };
///
/// Every concrete class calls endWork() first in its destructor: the worker must not meet a half-destroyed object. Work
/// that may outlast the exit wait uses its input only and none of the object's members, because the object is gone
/// then; its input and result are freed by the worker.
///
/// The operations are the owner's: one thread calls them.
class AParallelFunction {
public:
    /// How long, in seconds, the destructor waits for a running worker before it abandons it.
    explicit AParallelFunction(double exitWait);
    virtual ~AParallelFunction();
    AParallelFunction(const AParallelFunction&) = delete;
    AParallelFunction& operator=(const AParallelFunction&) = delete;

    /// Starts the work on the pool, or on a thread of its own when the pool is null. False when the last call still
    /// runs, or no thread could be made; the input is deleted then.
    bool execute(ThreadPool* pool, std::unique_ptr<IValue> input);
    bool isFinished() const;
    /// The last result, null while work runs. It stays until the next execute() has finished.
    IValue* getResult() const;
    /// Looks each millisecond: the result as soon as the work has finished, null when the time is up.
    IValue* waitForFinish(double seconds);

protected:
    /// Runs on the worker. The input stays until the next execute().
    virtual std::unique_ptr<IValue> actualFunction(IValue* input) = 0;
    /// Waits up to the exit wait, then abandons the worker. No execute() after it.
    void endWork();

private:
    struct Shared;
    static void* parallelFunctionMain(void* share);

    std::shared_ptr<Shared> shared_;
    double exitWait_;
    bool ended_ = false;
};

} // namespace skyvane

#pragma once

#include <memory>

namespace skyvane {

/// Work that may block for longer than anybody wants to wait, such as a name look-up.
///
/// Two ways to part from work that takes too long:
/// - executeWithTimeout(s, false) ends its thread by SIGUSR1. The thread unwinds from where it stands, so locks that a
///   library held stay held. Such work is one blocking library call without objects to destroy around it, no lock of
///   ours held, nothing caught.
/// - executeWithTimeout(s, true) leaves it running. The object then belongs to its thread, which runs cleanUp() when it
///   is done (usually `delete this`): it lives on the heap, and the caller touches it no more after a false.
class AFunctionWithTimeout {
public:
    AFunctionWithTimeout();
    virtual ~AFunctionWithTimeout();
    AFunctionWithTimeout(const AFunctionWithTimeout&) = delete;
    AFunctionWithTimeout& operator=(const AFunctionWithTimeout&) = delete;

    /// Runs the work on a thread of its own and looks each 10 ms. True when it ended in time; false when the time is
    /// up, or at once when no thread could be made, with leaveRunning after cleanUp() on the caller's thread.
    bool executeWithTimeout(double seconds, bool leaveRunning);

protected:
    virtual void actualFunction() = 0;
    /// Ends a run that was left running, on its worker.
    virtual void cleanUp() = 0;

private:
    struct State;
    static void* functionWithTimeoutMain(void* share);
    static void runUnblocked(AFunctionWithTimeout& work);

    std::shared_ptr<State> state_;
};

} // namespace skyvane

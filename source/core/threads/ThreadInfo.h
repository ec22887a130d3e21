#pragma once

namespace skyvane {

/// Names a thread to services that work per thread. Made once for the main thread and once by each worker that needs
/// it.
class ThreadInfo {
public:
    explicit ThreadInfo(void* native) : native_(native) {}
    void* getNative() const { return native_; }

private:
    void* native_;
};

} // namespace skyvane

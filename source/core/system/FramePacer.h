#pragma once

namespace skyvane {

/// Keeps frames at least 36 ms apart.
class FramePacer {
public:
    /// The first frame counts from here.
    FramePacer();
    /// Waits until 36 ms have passed since it last returned; not at all when they have.
    void wait();

    static constexpr int FrameMilliseconds = 36;

private:
    unsigned lastFrameMilliseconds_;
};

} // namespace skyvane

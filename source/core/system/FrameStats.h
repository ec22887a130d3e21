#pragma once

#include <string>
#include <vector>

namespace skyvane {

/// Measures the work of each frame, the pacer left out, for benchmarks.
///
/// Idle unless the environment variable SKYVANE_FRAME_STATS names a file, which is written at the end:
///     firstFrameSeconds=<from the process's start to the end of the first frame; the start is known to 10 ms>
///     firstFrameMonotonicSeconds=<the same moment on the system's monotonic clock>
///     frames=<number of frames; at most the last 65536 are listed>
///     workMilliseconds=<one line for each frame, in order>
/// With SKYVANE_FRAMES set to a number, the program ends by itself after that many frames.
/// Nothing is allocated between construction and the end.
class FrameStats {
public:
    /// An empty file name measures nothing.
    explicit FrameStats(std::string file, std::size_t frameLimit = 0);
    /// With the file and the limit that the environment names.
    static FrameStats fromEnvironment();

    void beginFrame();
    /// The pacer is about to wait, and has waited.
    void pauseFrame();
    void resumeFrame();
    void endFrame();

    /// The frames that were asked for have been drawn. Never without a limit.
    bool isComplete() const { return frameLimit_ > 0 && frames_ >= frameLimit_; }
    /// False when the file can't be written. Nothing for an idle object.
    bool write() const;

private:
    static constexpr std::size_t MaxFrames = 65536;

    std::string file_;
    std::size_t frameLimit_;
    std::vector<double> work_; ///< milliseconds, a ring once it is full
    std::size_t frames_ = 0;
    double begun_ = 0.0;
    double worked_ = 0.0;
    double firstFrameMonotonic_ = 0.0;
    double firstFrameSinceStart_ = 0.0;
};

} // namespace skyvane

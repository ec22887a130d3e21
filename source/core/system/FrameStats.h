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
/// The variable SKYVANE_FRAMES ends the program after so many frames, with or without that file.
/// Nothing is allocated between construction and the end.
class FrameStats {
public:
    /// An empty file name measures nothing; `wanted` 0 wants no end.
    explicit FrameStats(std::string file, unsigned wanted = 0);
    /// With the file and the number that the environment tells.
    static FrameStats fromEnvironment();

    void beginFrame();
    /// The pacer is about to wait, and has waited.
    void pauseFrame();
    void resumeFrame();
    void endFrame();
    /// As many frames as were wanted have been drawn.
    bool isEnough() const { return wanted_ > 0 && frames_ >= wanted_; }

    /// False when the file can't be written. Nothing for an idle object.
    bool write() const;

private:
    static constexpr std::size_t MaxFrames = 65536;

    std::string file_;
    std::size_t wanted_;
    std::vector<double> work_; ///< milliseconds, a ring once it is full
    std::size_t frames_ = 0;
    double begun_ = 0.0;
    double worked_ = 0.0;
    double firstFrameMonotonic_ = 0.0;
    double firstFrameSinceStart_ = 0.0;
};

} // namespace skyvane

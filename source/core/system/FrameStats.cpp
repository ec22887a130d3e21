#include "core/system/FrameStats.h"

#include "core/text/Numbers.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <time.h>
#include <unistd.h>

namespace skyvane {
namespace {

double now(clockid_t clock) {
    timespec time{};
    clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) + time.tv_nsec * 1e-9;
}

/// Seconds from boot to the start of this process: the 22nd field of its status line, in clock ticks. The second field
/// is the program's name in brackets and may hold blanks.
double processStart() {
    std::ifstream file("/proc/self/stat");
    std::string line;
    std::getline(file, line);
    const std::size_t name = line.rfind(')');
    if (name == std::string::npos)
        return now(CLOCK_BOOTTIME);
    std::istringstream fields(line.substr(name + 1));
    std::string field;
    for (int i = 3; i <= 22; ++i)
        fields >> field;
    return toDouble(field) / static_cast<double>(sysconf(_SC_CLK_TCK));
}

} // namespace

FrameStats::FrameStats(std::string file, unsigned wanted) : file_(std::move(file)), wanted_(wanted) {
    if (!file_.empty())
        work_.resize(MaxFrames);
}

FrameStats FrameStats::fromEnvironment() {
    const char* file = std::getenv("SKYVANE_FRAME_STATS");
    const char* frames = std::getenv("SKYVANE_FRAMES");
    return FrameStats(file ? file : "", frames ? toUnsigned(frames) : 0);
}

void FrameStats::beginFrame() {
    worked_ = 0.0;
    begun_ = now(CLOCK_MONOTONIC);
}

void FrameStats::pauseFrame() {
    worked_ += now(CLOCK_MONOTONIC) - begun_;
}

void FrameStats::resumeFrame() {
    begun_ = now(CLOCK_MONOTONIC);
}

void FrameStats::endFrame() {
    if (file_.empty()) {
        ++frames_;
        return;
    }
    const double ended = now(CLOCK_MONOTONIC);
    worked_ += ended - begun_;
    if (frames_ == 0) {
        firstFrameMonotonic_ = ended;
        firstFrameSinceStart_ = now(CLOCK_BOOTTIME) - processStart();
    }
    work_[frames_++ % MaxFrames] = worked_ * 1000.0;
}

bool FrameStats::write() const {
    if (file_.empty())
        return true;
    std::ofstream out(file_);
    out << "firstFrameSeconds=" << toFixedText(firstFrameSinceStart_, 3) << '\n'
        << "firstFrameMonotonicSeconds=" << toFixedText(firstFrameMonotonic_, 6) << '\n'
        << "frames=" << std::to_string(frames_) << '\n';
    const std::size_t listed = std::min(frames_, MaxFrames);
    for (std::size_t i = frames_ - listed; i < frames_; ++i)
        out << "workMilliseconds=" << toFixedText(work_[i % MaxFrames], 4) << '\n';
    out.close();
    return !out.fail();
}

} // namespace skyvane

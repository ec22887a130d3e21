#pragma once

#include <string>

namespace skyvane {

/// Tells when the machine's memory runs short.
///
/// Looks at the system's memory file every ten seconds. One shortage is told once: only after memory has recovered
/// can it be told again. Allocates nothing after construction.
class MemoryWatch {
public:
    explicit MemoryWatch(std::string file = "/proc/meminfo");

    /// True when a shortage has begun. `nowMilliseconds` is MilliSecs().
    bool poll(unsigned nowMilliseconds);

    static constexpr unsigned PeriodMilliseconds = 10000;
    /// Short below 5 % of the total, over again above 10 %.
    static constexpr double ShortShare = 0.05;
    static constexpr double RecoveredShare = 0.10;

private:
    /// Available share of the total memory; 1 when the file can't be understood.
    double readAvailableShare() const;

    std::string file_;
    unsigned lastLookMilliseconds_ = 0;
    bool looked_ = false;
    bool short_ = false;
};

} // namespace skyvane

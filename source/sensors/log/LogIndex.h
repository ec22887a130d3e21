#pragma once

#include "sensors/log/LargePageAllocator.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace skyvane {

class FileWindow;
struct LogHeader;

/// When and where the records of a log stand, in file order, so that a player can seek by time.
///
/// Times are in milliseconds since the first record. They rise, unless the clock wrapped while the log was recorded.
struct LogIndex {
    struct Sample {
        uint32_t timeMs;
        uint32_t offset;
    };

    std::vector<Sample, LargePageAllocator<Sample>> samples;
    /// Numbers of the samples that tell estimators to start over, ascending.
    std::vector<uint32_t> keys;

    /// The time of the last sample; 0 without samples.
    uint32_t endMs() const { return samples.empty() ? 0 : samples.back().timeMs; }
    /// The sample that is nearest to a time, and the first of those with the same time. `current` is where the player
    /// stands. There are samples.
    size_t find(size_t current, uint32_t playMs) const;
    /// The first of the samples around one that have its time.
    size_t firstOfItsTime(size_t sample) const;
    /// From one sample forward to another on a loop that begins again behind the last sample.
    uint32_t forwardMs(size_t from, size_t to) const;
    /// The first key behind a sample, on the same loop. There are keys.
    size_t nextKey(size_t sample) const;

    /// False when it has no samples. An index that the file doesn't hold as its header claims is left empty.
    bool read(FileWindow& file, const LogHeader& header);
};

/// Appends the index to a log that has none; a record that is cut, and what follows it, isn't indexed. Blocks while it
/// reads the whole log. Prints why nothing was done: no such file, another version, an index that is already there, a
/// log that is still being recorded. The result is the index it appended, empty when it didn't.
LogIndex calculateLogIndex(const std::string& path);

} // namespace skyvane

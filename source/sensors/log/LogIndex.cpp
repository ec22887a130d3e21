#include "sensors/log/LogIndex.h"

#include "sensors/log/FileWindow.h"
#include "sensors/log/LogLayout.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

constexpr size_t CountBytes = 4;
constexpr size_t SampleBytes = 8;
constexpr size_t KeyBytes = 4;
/// How many elements are taken from the file in one go.
constexpr size_t BlockElements = 16384;
/// Of the interpolation, before halving takes over.
constexpr int MostLooks = 64;

/// Reads a count and that many elements, as long as they fit before the file's end.
template <class List, class Read>
bool readList(FileWindow& file, uint64_t& place, size_t elementBytes, List& elements, Read read) {
    const uint8_t* countBytes = file.at(place, CountBytes);
    if (!countBytes)
        return false;
    const uint32_t count = readLogNumber(countBytes);
    place += CountBytes;
    if (count > (file.size() - place) / elementBytes)
        return false;
    elements.reserve(count);
    for (size_t left = count; left > 0;) {
        const size_t block = std::min(left, BlockElements);
        const uint8_t* bytes = file.at(place, block * elementBytes);
        if (!bytes)
            return false;
        for (size_t i = 0; i < block; ++i)
            elements.push_back(read(bytes + i * elementBytes));
        place += block * elementBytes;
        left -= block;
    }
    return true;
}

/// Where a time lies between two others, from 0 to 1.
double part(uint32_t timeMs, uint32_t lowMs, uint32_t highMs) {
    const double span = static_cast<double>(highMs) - lowMs;
    return span > 0.0 ? std::clamp((static_cast<double>(timeMs) - lowMs) / span, 0.0, 1.0) : 0.0;
}

} // namespace

// An interpolation search, which in an even log needs a few looks. Where the recording had paused, its guess can stand
// still far from the right place: halving then goes on between the bounds that it has found.
size_t LogIndex::find(size_t current, uint32_t playMs) const {
    const auto time = [this](size_t sample) { return samples[sample].timeMs; };
    const auto guessBetween = [&](size_t low, size_t high) {
        const double share = part(playMs, time(low), time(high));
        return low + static_cast<size_t>(std::round(share * static_cast<double>(high - low)));
    };
    size_t low = playMs < time(current) ? 0 : current;
    size_t high = playMs < time(current) ? current : samples.size() - 1;
    size_t guess = low;
    for (int looks = 0; low < high && looks < MostLooks; ++looks) {
        const size_t last = guess;
        guess = guessBetween(low, high);
        (time(guess) < playMs ? low : high) = guess;
        if (guess == last && looks > 0)
            break;
    }
    while (high - low > 1 && time(guess) != playMs) {
        const size_t middle = low + (high - low) / 2;
        (time(middle) < playMs ? low : high) = middle;
        guess = guessBetween(low, high);
    }
    return firstOfItsTime(low == high ? low : guess);
}

size_t LogIndex::firstOfItsTime(size_t sample) const {
    while (sample > 0 && samples[sample - 1].timeMs == samples[sample].timeMs)
        --sample;
    return sample;
}

uint32_t LogIndex::forwardMs(size_t from, size_t to) const {
    const uint64_t loop = uint64_t{endMs()} + 1;
    return static_cast<uint32_t>((loop + samples[to].timeMs - samples[from].timeMs) % loop);
}

size_t LogIndex::nextKey(size_t sample) const {
    const auto next = std::upper_bound(keys.begin(), keys.end(), sample);
    return next != keys.end() ? *next : keys.front();
}

bool LogIndex::read(FileWindow& file, const LogHeader& header) {
    uint64_t place = header.indexOffset;
    const auto readSample = [](const uint8_t* bytes) { return Sample{readLogNumber(bytes), readLogNumber(bytes + 4)}; };
    const bool complete = place >= header.length && readList(file, place, SampleBytes, samples, readSample) &&
                          readList(file, place, KeyBytes, keys, readLogNumber);
    const auto isBad = [this](uint32_t key) { return key >= samples.size(); };
    if (!complete || std::any_of(keys.begin(), keys.end(), isBad) || !std::is_sorted(keys.begin(), keys.end()))
        *this = LogIndex();
    return complete && !samples.empty();
}

} // namespace skyvane

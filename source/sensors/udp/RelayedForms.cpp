#include "sensors/udp/RelayedForms.h"

#include "core/time/Time.h"

#include <algorithm>

namespace skyvane {
namespace {

/// So long after the last record with a new time stamp its source counts as alive.
constexpr unsigned SourceAliveMs = 1000;

bool hasTimeStamp(ISensorData::Type type) {
    return type != ISensorData::Raw && type != ISensorData::Traffic && type != ISensorData::Localizer &&
           type != ISensorData::Glideslope && type != ISensorData::UATUplink;
}

/// FNV-1a; never 0, which stands for nothing sent.
uint64_t hashOf(const uint8_t* bytes, size_t length) {
    uint64_t hash = 0xcbf29ce484222325u;
    for (size_t i = 0; i < length; ++i)
        hash = (hash ^ bytes[i]) * 0x100000001b3u;
    return hash != 0 ? hash : 1;
}

} // namespace

bool RelayedForms::remember(Sent& sent, uint64_t hash) {
    if (std::find(sent.hashes.begin(), sent.hashes.end(), hash) != sent.hashes.end())
        return false;
    sent.hashes[sent.next] = hash;
    sent.next = (sent.next + 1) % Remembered;
    return true;
}

bool RelayedForms::isNews(ISensorData::Type type, const uint8_t* form, size_t length, unsigned nowMs) {
    if (!ISensorData::isType(type))
        return false;
    const bool isNew = remember(sent_[static_cast<size_t>(type)], hashOf(form, length));
    if (!hasTimeStamp(type))
        return isNew || (lastNewsMs_ && TimeDiff(nowMs, *lastNewsMs_) < SourceAliveMs);
    if (isNew)
        lastNewsMs_ = nowMs;
    return isNew;
}

} // namespace skyvane

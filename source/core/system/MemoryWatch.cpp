#include "core/system/MemoryWatch.h"

#include "core/time/Time.h"

#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace skyvane {
namespace {

/// The number behind a key of the file, 0 without one.
double numberBehind(const char* text, const char* key) {
    const char* place = std::strstr(text, key);
    return place ? static_cast<double>(std::strtoull(place + std::strlen(key), nullptr, 10)) : 0.0;
}

} // namespace

MemoryWatch::MemoryWatch(std::string file) : file_(std::move(file)) {}

bool MemoryWatch::poll(unsigned nowMilliseconds) {
    if (looked_ && TimeDiff(nowMilliseconds, lastLookMilliseconds_) < PeriodMilliseconds)
        return false;
    looked_ = true;
    lastLookMilliseconds_ = nowMilliseconds;
    const double share = readAvailableShare();
    if (short_) {
        short_ = share < RecoveredShare;
        return false;
    }
    short_ = share < ShortShare;
    return short_;
}

double MemoryWatch::readAvailableShare() const {
    const int file = open(file_.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0)
        return 1.0;
    char text[1024];
    const ssize_t length = read(file, text, sizeof text - 1);
    close(file);
    text[length > 0 ? length : 0] = '\0';
    const double total = numberBehind(text, "MemTotal:");
    const bool known = std::strstr(text, "MemAvailable:") != nullptr;
    return total > 0.0 && known ? numberBehind(text, "MemAvailable:") / total : 1.0;
}

} // namespace skyvane

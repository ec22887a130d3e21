#include "sensors/simulators/FlightGearSocket.h"

#include "core/log/Logger.h"
#include "core/text/Numbers.h"
#include "core/time/Time.h"

namespace skyvane {

FlightGearSocket::Result FlightGearSocket::recv(FlightGearData& data) {
    const int length = link_.recv();
    if (length < 0)
        return Result::Nothing;
    return take(link_.bytes(), static_cast<size_t>(length), data) ? Result::Data : Result::Dropped;
}

bool FlightGearSocket::take(const void* bytes, size_t length, FlightGearData& data) {
    if (data.parse(bytes, length))
        return true;
    if (length > 0)
        logWrongLength(length);
    return false;
}

void FlightGearSocket::logWrongLength(size_t length) {
    constexpr int maxLinesPerSecond = 10;
    const unsigned second = MilliSecs() / 1000;
    if (second != logSecond_)
        linesInSecond_ = 0;
    logSecond_ = second;
    if (linesInSecond_++ < maxLinesPerSecond)
        logText("FlightGearSocket #read bytes does not match the protocol: " + toText(static_cast<int>(length)) + "\n");
}

} // namespace skyvane

#include "sensors/BatteryMonitor.h"

#include "core/text/Numbers.h"
#include "sensors/ISensorHost.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <fcntl.h>
#include <limits>
#include <string_view>
#include <unistd.h>

namespace skyvane {
namespace {

constexpr double ReadPeriodSeconds = 1.0;
constexpr double MeasurableFillStep = 0.0001;
constexpr double LowFill = 0.15f;
constexpr double LowFillStep = 0.005;
/// Fills come in steps of a percent, minutes apart.
constexpr double FillBlurSeconds = 600.0;
constexpr double MinimalFillGapSeconds = 1.0;
constexpr int NoTimeout = -1;

/// The first line of a small file, in the buffer; empty when it can't be read. The kernel's files never take longer.
std::string_view readFirstLine(const std::string& path, std::array<char, 64>& buffer) {
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (file < 0)
        return {};
    const ssize_t length = read(file, buffer.data(), buffer.size());
    close(file);
    const std::string_view text(buffer.data(), length > 0 ? static_cast<size_t>(length) : 0);
    return text.substr(0, text.find_first_of("\r\n"));
}

} // namespace

BatteryMonitor::BatteryMonitor()
    : lastReadTime_(-std::numeric_limits<double>::infinity()),
      fillRates_(0.0, 0.0, nullptr, nullptr, MinimalFillGapSeconds, FillBlurSeconds, false),
      fills_(0.0, 0.0, nullptr, &fillRates_, MinimalFillGapSeconds, FillBlurSeconds, false) {
    // Nothing was measured yet: the initial samples would pull every charge speed towards zero.
    fillRates_.popLastSample();
    fills_.popLastSample();
    setFolder("/sys/class/power_supply/BAT0");
}

void BatteryMonitor::setFolder(const std::string& folder) {
    capacityPath_ = folder + "/capacity";
    statusPath_ = folder + "/status";
}

void BatteryMonitor::update(double now, ISensorHost& host) {
    if (!(now - lastReadTime_ > ReadPeriodSeconds))
        return;
    lastReadTime_ = now;
    const State stateBefore = state_;
    const double fillBefore = fill_;
    const bool fillKnownBefore = fillKnown_;
    readFill();
    readState();
    measure(now);
    tellPower(stateBefore, host);
    tellLowFill(stateBefore, fillBefore, fillKnownBefore, host);
}

void BatteryMonitor::readFill() {
    std::array<char, 64> buffer;
    const double none = -1.0;
    const double percent = toDouble(std::string(readFirstLine(capacityPath_, buffer)), none);
    if (percent < 0.0)
        return;
    fill_ = std::min(percent, 100.0) / 100.0;
    fillKnown_ = true;
}

void BatteryMonitor::readState() {
    std::array<char, 64> buffer;
    const std::string_view status = readFirstLine(statusPath_, buffer);
    if (!status.empty())
        state_ = status == "Discharging" ? Discharging : ChargingOrFull;
}

void BatteryMonitor::measure(double now) {
    if (!fillKnown_ || (measurementCount_ > 0 && std::fabs(fill_ - lastMeasuredFill_) <= MeasurableFillStep))
        return;
    ++measurementCount_;
    lastMeasuredFill_ = fill_;
    lastMeasurementTime_ = now;
    fills_.addSample(fill_, now);
}

void BatteryMonitor::tellPower(State before, ISensorHost& host) {
    if (before == ChargingOrFull && state_ < ChargingOrFull)
        host.setMessage(&powerLostOwner_, "\nExternal power lost.\n", MESSAGE_RED, NoTimeout);
    else if (before < ChargingOrFull && state_ == ChargingOrFull)
        host.removeMessage(&powerLostOwner_);
}

void BatteryMonitor::tellLowFill(State stateBefore, double fillBefore, bool fillKnownBefore, ISensorHost& host) {
    if (!fillKnown_ || (stateBefore != ChargingOrFull && state_ == Unknown))
        return;
    const bool changed = !fillKnownBefore || std::fabs(fill_ - fillBefore) > LowFillStep;
    if (fill_ > LowFill || !changed)
        return;
    const int percent = static_cast<int>(fill_ * 100.0 + 0.5);
    host.setMessage(&lowBatteryOwner_, "\nLow Battery: " + toText(percent) + "%\n", MESSAGE_RED, NoTimeout);
}

bool BatteryMonitor::chargeSpeed(double& fillPerSecond) {
    if (measurementCount_ < 2)
        return false;
    fillPerSecond = fillRates_.calcLastValueBlured();
    return true;
}

} // namespace skyvane

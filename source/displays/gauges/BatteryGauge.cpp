#include "displays/gauges/BatteryGauge.h"

#include "core/text/Numbers.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

namespace {

constexpr double longestSeconds = 1000.0 * 3600.0;

uint32_t channel(double value) {
    return static_cast<uint32_t>(std::clamp(value, 0.0, 255.0));
}

/// "3 hours 25 min"
std::string describeTime(double seconds) {
    const int minutes = roundHalfAway(std::min(seconds, longestSeconds) / 60.0);
    return toText(minutes / 60) + " hours " + toText(minutes % 60) + " min";
}

std::string describeSpeed(double fill, double fillPerSecond) {
    const double percentPerSecond = 100.0 * fillPerSecond;
    if (fillPerSecond > 0.0)
        return "Charging with: " + toFixedText(percentPerSecond, 4) +
               " % per second\nTime until fully charged: " + describeTime((1.0 - fill) / fillPerSecond);
    if (fillPerSecond < 0.0)
        return "Discharging with: " + toFixedText(-percentPerSecond * 3600.0, 1) +
               " % per hour\nTime remaining: " + describeTime(-fill / fillPerSecond);
    return "";
}

} // namespace

double shownFill(const BatteryReading& battery) {
    return battery.state != 0 && std::isfinite(battery.fill) ? std::clamp(battery.fill, 0.0, 1.0) : 0.0;
}

uint32_t batteryColor(double fill) {
    return 0xff000000u | channel((fill - 0.8) * -850.0) << 16 | channel((fill - 0.2) * 850.0) << 8;
}

std::string describeBattery(const BatteryReading& battery) {
    const double fill = shownFill(battery);
    std::string text =
        "Battery Status: " + (battery.state == 0 ? std::string("unknown") : toText(roundHalfAway(100.0 * fill)) + "%");
    if (battery.fillPerSecond && std::isfinite(*battery.fillPerSecond))
        text += "\nLast measurement (" + toText(static_cast<int>(battery.measurementAgeSeconds / 60.0)) +
                " minutes ago):\n" + describeSpeed(fill, *battery.fillPerSecond);
    return text;
}

} // namespace skyvane

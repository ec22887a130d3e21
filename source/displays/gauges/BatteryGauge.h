#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace skyvane {

/// The device's battery as its panel and its tap show it.
struct BatteryReading {
    int state = 0;     ///< 0 unknown, 1 discharging, 2 charging or full.
    double fill = 0.0; ///< 0 to 1.
    std::optional<double> fillPerSecond;
    double measurementAgeSeconds = 0.0;
};

/// Width of the battery for each pixel of its height.
constexpr float batteryAspect = 2.1512606f;

/// What the panel fills: nothing while the state is unknown; always 0 to 1.
double shownFill(const BatteryReading& battery);
/// Red at 20 percent and below, green at full, between them over yellow. 0xAARRGGBB.
uint32_t batteryColor(double fill);

/// The state, and the last measurement of the charge speed with the time until full or empty. A speed of 0 tells no
/// time.
std::string describeBattery(const BatteryReading& battery);

} // namespace skyvane

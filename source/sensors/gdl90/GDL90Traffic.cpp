#include "sensors/gdl90/GDL90Traffic.h"

#include "chart/geodesy/Angles.h"
#include "core/text/Numbers.h"
#include "sensors/gdl90/messages/TrafficGDL90Message.h"
#include "sensors/records/Traffic_Data.h"

#include <optional>

namespace skyvane {
namespace {

constexpr int AddressBits = 24;
constexpr int Unknown = -100000;
constexpr double MetresPerFoot = 0.3048;
constexpr double SecondsPerMinute = 60.0;

int roundOr(const std::optional<double>& value, double scale) {
    return value ? roundHalfAway(*value * scale) : Unknown;
}

void fill(TrafficElement& element, const TrafficGDL90Message& report) {
    element.icaoAddress = report.address;
    element.longitude = Angle0to360(report.longitude);
    element.latitude = Latitudinize(report.latitude);
    element.altitude = roundOr(report.pressureAltitude, 1.0 / MetresPerFoot);
    element.velocity = roundOr(report.velocity, 1.0);
    element.climbRate = roundOr(report.verticalSpeed, SecondsPerMinute / MetresPerFoot);
    element.squawk = 0;
    element.capabilityIndex = 100000;
    element.track = static_cast<float>(report.track);
    element.name = report.callSign;
}

} // namespace

void GDL90Traffic::take(const TrafficGDL90Message& report, double now, Traffic_Data& traffic) {
    if (!report.isPositionAvailable())
        return;
    const uint32_t key = static_cast<uint32_t>(report.addressType) << AddressBits | report.address;
    auto found = traffic.elements.find(key);
    if (found == traffic.elements.end()) {
        if (traffic.elements.size() >= MaxTargets)
            return;
        found = traffic.elements.emplace(key, std::make_unique<TrafficElement>()).first;
    }
    lastSeen_[key] = now;
    fill(*found->second, report);
}

void GDL90Traffic::expire(double now, Traffic_Data& traffic) {
    for (auto seen = lastSeen_.begin(); seen != lastSeen_.end();) {
        if (now - seen->second <= SilentSeconds) {
            ++seen;
            continue;
        }
        traffic.elements.erase(seen->first);
        seen = lastSeen_.erase(seen);
    }
}

} // namespace skyvane

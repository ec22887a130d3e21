#include "displays/gauges/SpeedScale.h"

#include "procedures/aircraft/profiles/Aircraft.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace skyvane {

namespace {

constexpr double largestShownAngle = 350.0;
constexpr double largestSpeed = 2000.0;
constexpr double SpeedScale::*speeds[] = {&SpeedScale::start,    &SpeedScale::end,        &SpeedScale::whiteStart,
                                          &SpeedScale::whiteEnd, &SpeedScale::greenStart, &SpeedScale::greenEnd,
                                          &SpeedScale::red,      &SpeedScale::blue};

double nextTenAbove(double value) {
    return 10.0 * (std::trunc(value / 10.0) + 1.0);
}

double bounded(double value) {
    return std::isfinite(value) ? std::clamp(value, -1.0, largestSpeed) : -1.0;
}

} // namespace

SpeedScale SpeedScale::of(const Aircraft& aircraft) {
    SpeedScale scale;
    const int lowest = aircraft.Vso >= 0 ? aircraft.Vso : std::max(aircraft.Vs, 0);
    const int highest = std::max({aircraft.Vne, aircraft.Vno, aircraft.Vfe});
    scale.start = 10.0 * std::trunc(lowest * 0.7 / 10.0 + 0.5);
    scale.end = 10.0 * std::trunc(highest / 10.0 + 0.5);
    scale.whiteStart = aircraft.Vso;
    scale.whiteEnd = aircraft.Vfe;
    scale.greenStart = aircraft.Vs;
    scale.greenEnd = aircraft.Vno;
    scale.red = aircraft.Vne;
    scale.blue = aircraft.Vsse;
    return scale;
}

bool SpeedScale::operator==(const SpeedScale& other) const {
    const auto same = [&](double SpeedScale::*speed) { return this->*speed == other.*speed; };
    return std::all_of(std::begin(speeds), std::end(speeds), same) && speedFallOff == other.speedFallOff &&
           deltaDesc == other.deltaDesc;
}

SpeedScale SpeedScale::toMetric() const {
    SpeedScale metric = *this;
    for (double SpeedScale::*speed : speeds)
        metric.*speed *= kilometresPerHourPerKnot;
    metric.start = nextTenAbove(metric.start);
    metric.end = nextTenAbove(metric.end);
    return metric;
}

double SpeedScale::angleOf(double speed) const {
    if (start >= end)
        return 340.0;
    if (speed >= start)
        return 320.0 * std::pow((speed - start) / (end - start), speedFallOff) + 20.0;
    if (start < 1.0)
        return 0.0;
    return speed * (20 / static_cast<int>(start)); // of whole numbers: a scale from above 20 rests at 0
}

double SpeedScale::shownAngleOf(double speed) const {
    return std::clamp(angleOf(speed), 0.0, largestShownAngle);
}

SpeedScale makeDrawable(const SpeedScale& scale) {
    SpeedScale drawable = scale;
    drawable.start = std::max(0.0, std::trunc(bounded(scale.start)));
    drawable.end = std::max(0.0, std::trunc(bounded(scale.end)));
    for (double SpeedScale::*speed : {&SpeedScale::whiteStart, &SpeedScale::whiteEnd, &SpeedScale::greenStart,
                                      &SpeedScale::greenEnd, &SpeedScale::red, &SpeedScale::blue})
        drawable.*speed = bounded(scale.*speed);
    if (!std::isfinite(scale.speedFallOff) || scale.speedFallOff <= 0.0)
        drawable.speedFallOff = 1.0;
    if (scale.deltaDesc <= 0)
        drawable.deltaDesc = 20;
    return drawable;
}

irr::core::vector2d<double> dialDirection(double degrees) {
    const double radians = (degrees + 90.0) / 57.29577951308232;
    return {-std::cos(radians), -std::sin(radians)};
}

std::vector<SpeedTick> layoutSpeedTicks(const SpeedScale& scale) {
    std::vector<SpeedTick> ticks;
    for (int speed = static_cast<int>(scale.start); speed <= scale.end; speed += 5) {
        if (speed != scale.red && speed != scale.blue)
            ticks.push_back({speed, dialDirection(scale.angleOf(speed)), speed % 10 == 0});
    }
    return ticks;
}

std::vector<SpeedLabel> layoutSpeedLabels(const SpeedScale& scale, double radius, ITextMeasure& measure) {
    std::vector<SpeedLabel> labels;
    for (int speed = static_cast<int>(scale.start); speed <= scale.end; speed += scale.deltaDesc) {
        const irr::core::dimension2d<unsigned> size = measure.measureNumber(speed);
        const double distance = 0.75 * radius - 0.5 * std::hypot(size.Width, size.Height);
        const irr::core::vector2d<double> centre = dialDirection(scale.angleOf(speed)) * distance;
        const int left = static_cast<int>(std::floor(radius + centre.X - 0.5 * size.Width + 0.5));
        const int top = static_cast<int>(std::floor(radius + centre.Y - 0.5 * size.Height + 0.5));
        const irr::core::rect<int> box(left, top, left + static_cast<int>(size.Width),
                                       top + static_cast<int>(size.Height));
        if (labels.empty() || !labels.back().box.isRectCollided(box))
            labels.push_back({speed, box});
    }
    return labels;
}

} // namespace skyvane

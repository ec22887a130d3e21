#include "displays/visionmath/VelocityEstimator.h"

#include "chart/geodesy/LocalFrame.h"

#include <cmath>

namespace skyvane {
namespace {

constexpr double rate = 1.5; // per second
constexpr double silenceSeconds = 3.0;
constexpr double fastest = 600.0;
constexpr double slowest = 15.0;
constexpr double neededSeconds = 1.0;
constexpr double shortestStep = 0.01;

} // namespace

void VelocityEstimator::restart(const ChartPosition& position, double time) {
    *this = VelocityEstimator();
    started_ = std::isfinite(position.longitude) && std::isfinite(position.latitude);
    position_ = position;
    time_ = time;
}

void VelocityEstimator::update(const ChartPosition& position, double time) {
    const double step = time - time_;
    if (!started_ || step < 0.0 || step > silenceSeconds)
        return restart(position, time);
    if (step < shortestStep || (position.longitude == position_.longitude && position.latitude == position_.latitude))
        return;
    const auto way = ChartPosition2Vector3df64(position_, position, 0.0);
    const Velocity now(way.X / step, way.Z / step);
    if (!(now.getLength() < fastest)) // NaN too
        return restart(position, time);
    const double k = known_ > 0.0 ? std::exp(-step * rate) : 0.0;
    velocity_ = velocity_ * k + now * (1.0 - k);
    known_ += step;
    position_ = position;
    time_ = time;
}

std::optional<VelocityEstimator::Velocity> VelocityEstimator::get() const {
    if (known_ < neededSeconds || velocity_.getLength() < slowest)
        return std::nullopt;
    return velocity_;
}

} // namespace skyvane

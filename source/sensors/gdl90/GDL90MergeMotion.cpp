#include "chart/geodesy/Angles.h"
#include "chart/geodesy/Barometry.h"
#include "chart/geodesy/EarthConstants.h"
#include "sensors/gdl90/GDL90Merge.h"
#include "sensors/simulators/PlausibleRange.h"

#include <cmath>

namespace skyvane {
namespace {

constexpr double StandardPressure = 1013.25;
constexpr double HeadingStepSeconds = 1.0;
/// Between headings that lie further apart nobody knows which way it turned.
constexpr double LongestHeadingGapSeconds = 5.0;
/// The first pressure counts above this.
constexpr double LeastPressure = 1e-8;
/// Between pressures that lie further apart there is no climb.
constexpr double LongestPressureGapSeconds = 2.0;

/// No AHRS says more; a missing angle is none.
bool isAngle(const std::optional<double>& degrees) {
    constexpr PlausibleRange turn{-180.0, 180.0};
    return degrees && turn.holds(*degrees);
}

} // namespace

void GDL90Merge::takeAttitude(const Messages& messages) {
    const auto set = [this](const std::optional<double>& roll, const std::optional<double>& pitch) {
        rollRadians_ = (calibration.rollOffsetDegrees - roll.value_or(0.0)) / DegreesPerRadian;
        pitchRadians_ = (calibration.pitchOffsetDegrees - pitch.value_or(0.0)) / DegreesPerRadian;
        return isAngle(roll) && isAngle(pitch);
    };
    bool isValid = false;
    if (messages.stratux)
        isValid = set(messages.stratux->roll, messages.stratux->pitch);
    else if (messages.ffAhrs)
        isValid = set(messages.ffAhrs->roll, messages.ffAhrs->pitch);
    else
        set(rollRadians_, pitchRadians_);
    headings_.take(messages, flavor_);
    heading_ = headings_.choose();
    writeHeadings(isValid);
}

/// An attitude whose heading has gone still has its bank and pitch: it is in doubt then.
void GDL90Merge::writeHeadings(bool isAttitudeValid) {
    const ISensor::WarningLevel live = heading_.kind == GDL90Headings::Magnetic ? ISensor::MAYBE_WRONG : ISensor::GOOD;
    records_.attitude.matrix = createYawMatrix(heading_.degrees / DegreesPerRadian) * createPitchMatrix(pitchRadians_) *
                               createRollMatrix(rollRadians_);
    records_.attitude.resetKind = Attitude_Data::NoReset;
    records_.attitude.timeStamp = nowMs_;
    const bool hasAttitude = isAttitudeValid && heading_.kind != GDL90Headings::None;
    records_.give(ISensorData::Attitude, !hasAttitude ? ISensor::WRONG : heading_.isLive ? live : ISensor::MAYBE_WRONG);
    records_.heading.value = heading_.degrees;
    records_.heading.timeStamp = nowMs_;
    records_.give(ISensorData::Heading, heading_.isLive ? live : ISensor::WRONG);
    if (!headings_.trueHeading().isLive && !headings_.magnetic().isLive)
        return;
    records_.extendedHeading = {headings_.trueHeading().live(), headings_.magnetic().live(), nowMs_};
    records_.give(ISensorData::ExtendedHeading);
}

void GDL90Merge::setAcceleration(double x, double y, double z) {
    records_.acceleration = {x, y, z, nowMs_};
    records_.give(ISensorData::Acceleration);
}

void GDL90Merge::takeAcceleration(const Messages& messages) {
    if (const TalosAccMessage* from = messages.talosAcc) {
        const double x = accelerationX_.add(-from->accY, now_);
        const double y = accelerationY_.add(from->accZ, now_);
        const double z = accelerationZ_.add(-from->accX, now_);
        setAcceleration(x, y, z);
    }
    // A load of one is the apparent gravity of level flight, which points down.
    if (messages.stratux && messages.stratux->slipSkid && messages.stratux->gLoad)
        setAcceleration(*messages.stratux->slipSkid, -*messages.stratux->gLoad, 0.0);
}

void GDL90Merge::takeTurnRate(const Messages& messages) {
    std::optional<double> rate;
    if (messages.talosGyro)
        rate = gyroRate_.add(-messages.talosGyro->gyroZ * DegreesPerRadian, now_);
    else if (messages.stratux)
        rate = messages.stratux->yawRate;
    if (!rate)
        return turnByHeading();
    if (!Plausible::yawRateDegreesPerSecond.holds(*rate))
        return;
    records_.turnRate.value = *rate;
    records_.turnRate.timeStamp = nowMs_;
    records_.give(ISensorData::TurnRate);
}

/// Between its steps the rate stands.
void GDL90Merge::turnByHeading() {
    const double passed = now_ - headingMark_.time;
    const bool goesOn = heading_.isLive && heading_.kind == headingMark_.kind && passed <= LongestHeadingGapSeconds;
    if (goesOn && passed > HeadingStepSeconds) {
        records_.turnRate.value = headingRate_.add(Angle180(heading_.degrees - headingMark_.degrees) / passed, now_);
        records_.turnRate.timeStamp = nowMs_;
        records_.give(ISensorData::TurnRate);
    } else if (goesOn && headingRate_.hasValue()) {
        records_.setWarning(ISensorData::TurnRate, ISensor::GOOD);
    }
    if (!goesOn)
        headingRate_.reset();
    if (!goesOn || passed > HeadingStepSeconds)
        headingMark_ = {heading_.degrees, now_, heading_.isLive ? heading_.kind : GDL90Headings::None};
}

void GDL90Merge::takeVerticalSpeed(const Messages& messages, double arrival) {
    std::optional<double> climb;
    if (messages.talosPressure)
        climb = climbByPressure(*messages.talosPressure, arrival);
    if (!climb && messages.stratux)
        climb = messages.stratux->verticalSpeed;
    if (!climb || !Plausible::climbMetresPerSecond.holds(*climb))
        return;
    records_.verticalSpeed.value = *climb;
    records_.verticalSpeed.timeStamp = nowMs_;
    records_.give(ISensorData::VerticalSpeed);
}

/// One pressure gives no climb. The last climb stands until the next pressure comes.
std::optional<double> GDL90Merge::climbByPressure(const TalosPressureMessage& message, double arrival) {
    const double passed = arrival - pressureTime_;
    const double altitude = calcAltitudeFromPressure(message.staticPressure, StandardPressure);
    if (message.staticPressure <= LeastPressure || !std::isfinite(altitude))
        return std::nullopt;
    if (!pressureAltitude_ || passed > LongestPressureGapSeconds)
        climb_.reset();
    else if (passed > 0.0)
        climb_.add((altitude - *pressureAltitude_) / passed, now_);
    if (!pressureAltitude_ || passed > 0.0) {
        pressureAltitude_ = altitude;
        pressureTime_ = arrival;
    }
    return climb_.hasValue() ? std::optional<double>(climb_.value()) : std::nullopt;
}

} // namespace skyvane

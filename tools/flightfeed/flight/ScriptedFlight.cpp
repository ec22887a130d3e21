#include "flightfeed/flight/ScriptedFlight.h"

#include "flightfeed/flight/LandingBeam.h"
#include "flightfeed/flight/PlanRoute.h"
#include "flightfeed/flight/Units.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

namespace {

constexpr double LONGEST_STEP_SECONDS = 0.01;
// A card can ask for what the wind makes impossible; nothing is tried for ever.
constexpr double LONGEST_MANOEUVRE_SECONDS = 36001.0;

void fly(CardTraffic& other, double seconds) {
    const double speed = other.speedKnots * METRES_PER_SECOND_PER_KNOT;
    const double middle = toRadians(other.headingDegrees + 0.5 * other.turnDegreesPerSecond * seconds);
    moveBy(other.point, other.altitudeMetres, speed * std::cos(middle) * seconds, speed * std::sin(middle) * seconds);
    other.headingDegrees = wrapDegrees360(other.headingDegrees + other.turnDegreesPerSecond * seconds);
    other.altitudeMetres = std::clamp(other.altitudeMetres + other.climbMetresPerSecond * seconds, 0.0, 15000.0);
}

} // namespace

ScriptedFlight::ScriptedFlight(FlightCard card) : card_(std::move(card)), pilot_(model_) {
    restart();
}

void ScriptedFlight::restart() {
    const double heading = toRadians(card_.startHeadingDegrees);
    if (card_.startInAir)
        model_.placeInAir(card_.startPoint, card_.startAltitudeMetres, heading,
                          card_.startSpeedKnots * METRES_PER_SECOND_PER_KNOT);
    else
        model_.placeOnGround(card_.startPoint, card_.startAltitudeMetres, heading);
    pilot_.courseRadians = heading;
    pilot_.altitudeMetres = card_.startAltitudeMetres;
    traffic_ = card_.traffic;
    state_ = FlightState();
    state_.utcSeconds = card_.utcSeconds;
    nextStep_ = 0;
    nextManoeuvre();
    model_.settleWind();
    publish();
    if (card_.route)
        card_.route->begin(state_);
}

bool ScriptedFlight::nextManoeuvre() {
    using Kind = CardStep::Kind;
    manoeuvre_.reset();
    manoeuvreSeconds_ = 0.0;
    bool immediate = true;
    while (immediate && nextStep_ < card_.steps.size()) {
        const CardStep& step = card_.steps[nextStep_++];
        manoeuvre_ = makeManoeuvre(card_, step);
        if (!manoeuvre_) // a plan that nobody gave
            continue;
        manoeuvre_->begin(pilot_);
        immediate = step.kind == Kind::Speed || step.kind == Kind::Wind;
    }
    if (immediate)
        manoeuvre_.reset();
    return manoeuvre_ != nullptr;
}

bool ScriptedFlight::step(double seconds) {
    if (!manoeuvre_)
        return false;
    manoeuvreSeconds_ += seconds;
    const bool over = manoeuvre_->fly(pilot_, seconds) || manoeuvreSeconds_ > LONGEST_MANOEUVRE_SECONDS;
    model_.step(seconds);
    return !over || nextManoeuvre();
}

bool ScriptedFlight::advance(double seconds) {
    if (!manoeuvre_)
        return false;
    const int count = std::max(1, static_cast<int>(std::ceil(seconds / LONGEST_STEP_SECONDS - 1e-9)));
    const double part = seconds / count;
    bool flying = true;
    for (int i = 0; flying && i < count; ++i) {
        flying = step(part);
        state_.timeSeconds += part;
        state_.utcSeconds += part;
    }
    moveTraffic(seconds);
    publish();
    return flying;
}

void ScriptedFlight::moveTraffic(double seconds) {
    for (CardTraffic& other : traffic_)
        fly(other, seconds);
}

void ScriptedFlight::publish() {
    model_.fill(state_);
    if (card_.hasRunway)
        setLandingBeam(card_.runway, state_);
    state_.trafficCount = static_cast<int>(traffic_.size());
    for (size_t i = 0; i < traffic_.size(); ++i)
        state_.traffic[i] = {traffic_[i].point.latitudeDegrees,
                             traffic_[i].point.longitudeDegrees,
                             traffic_[i].altitudeMetres,
                             traffic_[i].headingDegrees,
                             traffic_[i].speedKnots,
                             traffic_[i].climbMetresPerSecond,
                             traffic_[i].name};
}

} // namespace skyvane

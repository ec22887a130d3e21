#include "flightfeed/flight/IManoeuvre.h"
#include "flightfeed/flight/PlanRoute.h"
#include "flightfeed/flight/Units.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

namespace {

double courseOf(const GroundOffset& way) {
    return std::atan2(way.eastMetres, way.northMetres);
}

// One leg of a path of way points. It ends where the turn onto the next leg begins, or at its point.
class Follow : public IManoeuvre {
public:
    Follow(const FlightCard& card, const CardStep& step) : step_(step) {
        const size_t index = static_cast<size_t>(&step - card.steps.data());
        if (index > 0 && card.steps[index - 1].kind == CardStep::Kind::Follow)
            before_ = &card.steps[index - 1];
        if (index + 1 < card.steps.size() && card.steps[index + 1].kind == CardStep::Kind::Follow)
            after_ = &card.steps[index + 1];
    }

    void begin(Pilot& pilot) override {
        const FlightModel& model = pilot.model();
        from_ = before_ ? before_->point : model.point();
        fromAltitude_ = pilot.altitudeMetres;
        toAltitude_ = step_.keepAltitude ? pilot.altitudeMetres : step_.altitudeMetres;
        const GroundOffset way = offsetBetween(from_, step_.point);
        course_ = courseOf(way);
        length_ = std::hypot(way.northMetres, way.eastMetres);
        if (after_)
            turn_ = std::abs(wrapRadians(courseOf(offsetBetween(step_.point, after_->point)) - course_));
    }

    bool fly(Pilot& pilot, double) override {
        const GroundOffset flown = offsetBetween(from_, pilot.model().point());
        const double along = flown.northMetres * std::cos(course_) + flown.eastMetres * std::sin(course_);
        const double right = flown.eastMetres * std::cos(course_) - flown.northMetres * std::sin(course_);
        steer(pilot, right);
        hold(pilot, along);
        pilot.takeCourse();
        if (length_ - along > lead(pilot.model()))
            return false;
        pilot.altitudeMetres = toAltitude_;
        return true;
    }

private:
    void steer(Pilot& pilot, double rightMetres) const {
        constexpr double secondsToLine = 6.0, greatestIntercept = 45.0;
        const double reach = secondsToLine * std::max(10.0, pilot.model().groundSpeedMetresPerSecond());
        const double intercept =
            std::clamp(std::atan(rightMetres / reach), -toRadians(greatestIntercept), toRadians(greatestIntercept));
        pilot.steerTrack(course_ - intercept);
    }

    // Aimed a little ahead: what is held follows with that delay.
    void hold(Pilot& pilot, double alongMetres) const {
        constexpr double delaySeconds = 4.0, greatestClimb = 8.0;
        const double ahead = alongMetres + delaySeconds * pilot.model().groundSpeedMetresPerSecond();
        const double share = length_ > 1.0 ? std::clamp(ahead / length_, 0.0, 1.0) : 1.0;
        pilot.altitudeMetres = fromAltitude_ + share * (toAltitude_ - fromAltitude_);
        pilot.holdAltitude(greatestClimb);
    }

    // A corner sharper than this is flown round, not cut far ahead.
    double lead(const FlightModel& model) const {
        constexpr double sharpestDegrees = 120.0, reachedSeconds = 0.5;
        const double radius = model.groundSpeedMetresPerSecond() / STANDARD_RATE_RADIANS_PER_SECOND;
        const double turning = radius * std::tan(0.5 * std::min(turn_, toRadians(sharpestDegrees)));
        return std::max(turning, reachedSeconds * model.groundSpeedMetresPerSecond());
    }

    CardStep step_;
    const CardStep* before_ = nullptr;
    const CardStep* after_ = nullptr;
    GroundPoint from_;
    double fromAltitude_ = 0.0, toAltitude_ = 0.0;
    double course_ = 0.0, length_ = 0.0, turn_ = 0.0;
};

// The flight plan, until the runway is near.
class FlyPlan : public IManoeuvre {
public:
    explicit FlyPlan(PlanRoute& route) : route_(route) {}

    void begin(Pilot& pilot) override { route_.join(stateOf(pilot)); }

    bool fly(Pilot& pilot, double) override {
        constexpr double steepestBank = 30.0, runwayMetres = 1852.0;
        FlightModel& model = pilot.model();
        const FlightState state = stateOf(pilot);
        const PlanRoute::Aim aim = route_.follow(state);
        pilot.turnAt(aim.turnRadiansPerSecond, toRadians(steepestBank));
        climb(model, aim);
        hold(model, aim.groundSpeedKnots - state.groundSpeedKnots);
        pilot.takeCourse();
        pilot.altitudeMetres = aim.altitudeMetres;
        return aim.metresLeft < runwayMetres;
    }

private:
    static FlightState stateOf(Pilot& pilot) {
        FlightState state;
        pilot.model().fill(state);
        return state;
    }
    static void climb(FlightModel& model, const PlanRoute::Aim& aim) {
        constexpr double gainPerSecond = 0.15, gentlest = 2.0, fastestClimb = 4.6, fastestDescent = 7.0;
        const double off = gainPerSecond * (aim.altitudeMetres - model.altitudeMetres());
        const double wanted = aim.climbMetresPerSecond + std::clamp(off, -gentlest, gentlest);
        model.controls.climbMetresPerSecond = std::clamp(wanted, -fastestDescent, fastestClimb);
    }
    /// The airspeed that gives the plan's ground speed.
    static void hold(FlightModel& model, double missingKnots) {
        constexpr double slowestKnots = 62.0, fastestKnots = 140.0;
        const double wanted = model.airspeedMetresPerSecond() / METRES_PER_SECOND_PER_KNOT + missingKnots;
        model.controls.airspeedMetresPerSecond =
            std::clamp(wanted, slowestKnots, fastestKnots) * METRES_PER_SECOND_PER_KNOT;
    }

    PlanRoute& route_;
};

} // namespace

std::unique_ptr<IManoeuvre> makeRouteManoeuvre(const FlightCard& card, const CardStep& step) {
    if (step.kind == CardStep::Kind::Plan && card.route)
        return std::make_unique<FlyPlan>(*card.route);
    if (step.kind != CardStep::Kind::Follow)
        return nullptr;
    return std::make_unique<Follow>(card, step);
}

} // namespace skyvane

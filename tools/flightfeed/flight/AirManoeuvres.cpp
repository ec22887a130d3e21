#include "flightfeed/flight/IManoeuvre.h"

#include "flightfeed/flight/Units.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

namespace {

class Climb : public IManoeuvre {
public:
    explicit Climb(const CardStep& step) : step_(step) {}
    void begin(Pilot& pilot) override { pilot.altitudeMetres = step_.altitudeMetres; }
    bool fly(Pilot& pilot, double) override {
        pilot.holdCourse();
        pilot.holdAltitude(step_.climbMetresPerSecond);
        return std::abs(pilot.model().altitudeMetres() - pilot.altitudeMetres) < 1.0 &&
               std::abs(pilot.model().climbMetresPerSecond()) < 0.2;
    }

private:
    CardStep step_;
};

class Turn : public IManoeuvre {
public:
    explicit Turn(const CardStep& step) : step_(step), sign_(step.turnRight ? 1.0 : -1.0) {}

    void begin(Pilot& pilot) override {
        before_ = pilot.model().airCourseRadians();
        const double asked = toRadians(step_.angleDegrees);
        if (step_.turnByAngle) {
            remaining_ = asked;
        } else {
            // Already there, or a hair beyond: no circle.
            constexpr double hairDegrees = 5.0;
            remaining_ = toRadians(wrapDegrees360(toDegrees(sign_ * (asked - before_)) + hairDegrees) - hairDegrees);
        }
        pilot.courseRadians = wrapRadians(before_ + sign_ * remaining_);
    }

    bool fly(Pilot& pilot, double) override {
        const double course = pilot.model().airCourseRadians();
        remaining_ -= sign_ * wrapRadians(course - before_);
        before_ = course;
        const double rate = std::min(fullRate(pilot.model()), TURN_GAIN_PER_SECOND * remaining_);
        pilot.turnAt(sign_ * rate, toRadians(60.0));
        pilot.holdAltitude();
        return std::abs(remaining_) < toRadians(0.3) && std::abs(pilot.model().bankRadians()) < toRadians(1.0);
    }

private:
    double fullRate(const FlightModel& model) const {
        if (step_.bankDegrees <= 0.0)
            return STANDARD_RATE_RADIANS_PER_SECOND;
        return GRAVITY_METRES_PER_SECOND_SQUARED * std::tan(toRadians(step_.bankDegrees)) /
               model.trueAirspeedMetresPerSecond();
    }

    CardStep step_;
    double sign_;
    double before_ = 0.0;
    double remaining_ = 0.0;
};

class Level : public IManoeuvre {
public:
    explicit Level(const CardStep& step) : remaining_(step.seconds) {}
    void begin(Pilot&) override {}
    bool fly(Pilot& pilot, double seconds) override {
        pilot.holdCourse();
        pilot.holdAltitude();
        remaining_ -= seconds;
        return remaining_ <= 0.0;
    }

private:
    double remaining_;
};

class Slip : public IManoeuvre {
public:
    explicit Slip(const CardStep& step) : ball_(toRadians(step.angleDegrees)), remaining_(step.seconds) {}
    void begin(Pilot&) override {}
    bool fly(Pilot& pilot, double seconds) override {
        remaining_ -= seconds;
        pilot.model().controls.ballRadians = remaining_ > 0.0 ? ball_ : 0.0;
        pilot.holdCourse();
        pilot.holdAltitude();
        return remaining_ <= 0.0 && std::abs(pilot.model().ballRadians()) < toRadians(0.1);
    }

private:
    double ball_;
    double remaining_;
};

class Direct : public IManoeuvre {
public:
    explicit Direct(const CardStep& step) : point_(step.point) {}
    void begin(Pilot&) override {}
    bool fly(Pilot& pilot, double) override {
        constexpr double reachedMetres = 200.0, abeamMetres = 3000.0;
        const FlightModel& model = pilot.model();
        const GroundOffset to = offsetBetween(model.point(), point_);
        const double distance = std::hypot(to.northMetres, to.eastMetres);
        const double bearing = std::atan2(to.eastMetres, to.northMetres);
        const bool behind = std::abs(wrapRadians(bearing - model.groundTrackRadians())) > toRadians(90.0);
        pilot.steerTrack(bearing);
        pilot.holdAltitude();
        pilot.takeCourse();
        return distance < reachedMetres || (behind && distance < abeamMetres);
    }

private:
    GroundPoint point_;
};

// What changes only what is asked of the aircraft takes no time.
class Ask : public IManoeuvre {
public:
    explicit Ask(const CardStep& step) : step_(step) {}
    void begin(Pilot& pilot) override {
        FlightControls& controls = pilot.model().controls;
        const double speed = step_.speedKnots * METRES_PER_SECOND_PER_KNOT;
        if (step_.kind == CardStep::Kind::Speed) {
            controls.airspeedMetresPerSecond = speed;
            return;
        }
        controls.windToNorthMetresPerSecond = -speed * std::cos(toRadians(step_.angleDegrees));
        controls.windToEastMetresPerSecond = -speed * std::sin(toRadians(step_.angleDegrees));
    }
    bool fly(Pilot&, double) override { return true; }

private:
    CardStep step_;
};

} // namespace

std::unique_ptr<IManoeuvre> makeManoeuvre(const FlightCard& card, const CardStep& step) {
    switch (step.kind) {
    case CardStep::Kind::Climb:
        return std::make_unique<Climb>(step);
    case CardStep::Kind::Turn:
        return std::make_unique<Turn>(step);
    case CardStep::Kind::Level:
        return std::make_unique<Level>(step);
    case CardStep::Kind::Slip:
        return std::make_unique<Slip>(step);
    case CardStep::Kind::Direct:
        return std::make_unique<Direct>(step);
    case CardStep::Kind::Speed:
    case CardStep::Kind::Wind:
        return std::make_unique<Ask>(step);
    case CardStep::Kind::Follow:
    case CardStep::Kind::Plan:
        return makeRouteManoeuvre(card, step);
    default:
        return makeRunwayManoeuvre(card, step);
    }
}

} // namespace skyvane

#include "flightfeed/flight/IManoeuvre.h"
#include "flightfeed/flight/LandingBeam.h"
#include "flightfeed/flight/Units.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

namespace {

constexpr double knots(double value) {
    return value * METRES_PER_SECOND_PER_KNOT;
}

class Stand : public IManoeuvre {
public:
    explicit Stand(const CardStep& step) : remaining_(step.seconds) {}
    void begin(Pilot& pilot) override { pilot.model().controls.groundSpeedMetresPerSecond = 0.0; }
    bool fly(Pilot&, double seconds) override {
        remaining_ -= seconds;
        return remaining_ <= 0.0;
    }

private:
    double remaining_;
};

class TakeOff : public IManoeuvre {
public:
    void begin(Pilot& pilot) override {
        FlightControls& controls = pilot.model().controls;
        controls.groundSpeedMetresPerSecond = knots(150.0); // full power, far above where it lifts off
        controls.groundPitchRadians = 0.0;
        controls.airspeedMetresPerSecond = knots(75.0);
        elevation_ = pilot.model().altitudeMetres();
        pilot.altitudeMetres = elevation_ + 500.0 * METRES_PER_FOOT;
    }

    bool fly(Pilot& pilot, double) override {
        constexpr double clearMetres = 120.0, climb = 3.5;
        if (pilot.model().onGround()) {
            roll(pilot);
            return false;
        }
        pilot.holdCourse();
        pilot.holdAltitude(climb);
        return pilot.model().altitudeMetres() > elevation_ + clearMetres;
    }

private:
    void roll(Pilot& pilot) {
        FlightModel& model = pilot.model();
        if (model.airspeedMetresPerSecond() >= knots(54.0))
            model.controls.groundPitchRadians = toRadians(9.0);
        FlightState state;
        model.fill(state);
        if (model.airspeedMetresPerSecond() < knots(58.0) || state.pitchDegrees < 7.5)
            return;
        model.liftOff();
        pilot.takeCourse();
    }

    double elevation_ = 0.0;
};

// Holds altitude until the glide path comes down to it, follows both beams, flares, rolls out and stops.
class Land : public IManoeuvre {
public:
    explicit Land(const CardRunway& runway) : runway_(runway), course_(toRadians(runway.courseDegrees)) {}

    void begin(Pilot& pilot) override { pilot.model().controls.airspeedMetresPerSecond = knots(70.0); }

    bool fly(Pilot& pilot, double) override {
        FlightModel& model = pilot.model();
        if (model.onGround())
            return model.groundSpeedMetresPerSecond() < 0.3;
        constexpr double wheelsMetres = 0.15;
        const RunwayOffset offset = runwayOffset(runway_, model.point());
        if (model.altitudeMetres() - groundMetres(offset) <= wheelsMetres) {
            model.controls.groundSpeedMetresPerSecond = 0.0;
            model.controls.groundPitchRadians = 0.0;
            model.controls.crabRadians = 0.0;
            model.touchDown(groundMetres(offset), course_, slope());
            return false;
        }
        steer(pilot, offset);
        descend(pilot, offset);
        return false;
    }

private:
    double slope() const { return runway_.riseMetres / runway_.lengthMetres; }
    /// Of the runway below, or of its threshold.
    double groundMetres(const RunwayOffset& offset) const {
        return runway_.elevationMetres + slope() * std::clamp(-offset.beforeMetres, 0.0, runway_.lengthMetres);
    }

    void steer(Pilot& pilot, const RunwayOffset& offset) {
        constexpr double secondsToCentreline = 12.0, greatestIntercept = 45.0;
        constexpr double straightenMetres = 8.0;
        FlightModel& model = pilot.model();
        const double reach = secondsToCentreline * std::max(10.0, model.groundSpeedMetresPerSecond());
        const double intercept = std::clamp(std::atan(offset.rightMetres / reach), -toRadians(greatestIntercept),
                                            toRadians(greatestIntercept));
        pilot.steerTrack(course_ - intercept);
        if (model.altitudeMetres() - groundMetres(offset) < straightenMetres)
            model.controls.crabRadians = wrapRadians(model.airCourseRadians() - course_);
    }

    void descend(Pilot& pilot, const RunwayOffset& offset) {
        constexpr double captureMetres = 4.0, gainPerSecond = 0.2, steepest = 7.0;
        constexpr double flarePerSecond = 0.25, touchDownMetresPerSecond = 0.2, flareMetres = 5.0;
        FlightModel& model = pilot.model();
        const double above = model.altitudeMetres() - glidePathMetres(runway_, offset.beforeMetres);
        onGlidePath_ = onGlidePath_ || above > -captureMetres;
        if (!onGlidePath_)
            return pilot.holdAltitude();
        const double height = model.altitudeMetres() - groundMetres(offset);
        const double along = -model.groundSpeedMetresPerSecond() * std::tan(toRadians(runway_.glideDegrees));
        const double glide = std::clamp(along - gainPerSecond * above, -steepest, 0.5);
        const double flare = -flarePerSecond * height - touchDownMetresPerSecond;
        model.controls.climbMetresPerSecond = flare > glide || flaring_ ? flare : glide;
        flaring_ = flaring_ || flare > glide;
        if (flaring_ && height < flareMetres)
            model.controls.airspeedMetresPerSecond = knots(55.0);
    }

    CardRunway runway_;
    double course_;
    bool onGlidePath_ = false;
    bool flaring_ = false;
};

} // namespace

std::unique_ptr<IManoeuvre> makeRunwayManoeuvre(const FlightCard& card, const CardStep& step) {
    switch (step.kind) {
    case CardStep::Kind::Stand:
        return std::make_unique<Stand>(step);
    case CardStep::Kind::TakeOff:
        return std::make_unique<TakeOff>();
    case CardStep::Kind::Land:
        return std::make_unique<Land>(card.runway);
    default:
        return nullptr;
    }
}

} // namespace skyvane

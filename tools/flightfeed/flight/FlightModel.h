#pragma once

#include "flightfeed/flight/BodyFrame.h"
#include "flightfeed/flight/FlightState.h"
#include "flightfeed/flight/LocalEarth.h"
#include "flightfeed/flight/SmoothFollower.h"

namespace skyvane {

/// What a pilot asks of the aircraft. The model follows smoothly, within what a light single does.
struct FlightControls {
    double bankRadians = 0.0;
    double climbMetresPerSecond = 0.0;
    double airspeedMetresPerSecond = 50.0; ///< indicated
    double ballRadians = 0.0;              ///< where the ball shall stand, right positive
    double crabRadians = 0.0;              ///< nose left of the air's flow by this much, without bank

    double groundSpeedMetresPerSecond = 0.0; ///< on the ground
    double groundPitchRadians = 0.0;         ///< on the ground

    double windToNorthMetresPerSecond = 0.0; ///< where the air goes
    double windToEastMetresPerSecond = 0.0;
};

/// The kinematics of a light single.
///
/// In the air bank, climb rate, airspeed, ball and wind each follow what is asked; the turn rate is then that one
/// turn rate at which the specific force lies where the ball shows it, so a turn without a ball is coordinated exactly.
/// Pitch is flight path angle plus the angle of attack that the load asks for. Velocity is air velocity plus wind.
/// On the ground the aircraft rolls along its course. All rates are known in closed form: nothing is differenced.
class FlightModel {
public:
    void placeOnGround(const GroundPoint& point, double elevationMetres, double courseRadians);
    void placeInAir(const GroundPoint& point, double altitudeMetres, double headingRadians,
                    double airspeedMetresPerSecond);
    /// Keeps the wind that is asked for as the wind from now on, without a blend.
    void settleWind();
    void liftOff();
    /// On ground that rises by `slope` metres per metre along the course.
    void touchDown(double elevationMetres, double courseRadians, double slope = 0.0);

    FlightControls controls;

    /// One step of at most a hundredth of a second.
    void step(double seconds);
    /// Writes everything but the times, the instrument landing beams and the traffic.
    void fill(FlightState& state) const;

    const GroundPoint& point() const { return point_; }
    double altitudeMetres() const { return altitude_; }
    double airspeedMetresPerSecond() const;
    double trueAirspeedMetresPerSecond() const { return trueAirspeed_; }
    /// The direction of the air velocity: the heading, as long as the ball is in the middle.
    double airCourseRadians() const { return airCourse_; }
    double airCourseRate() const { return airCourseRate_; }
    double bankRadians() const { return bank_.value(); }
    double ballRadians() const { return ball_.value(); }
    double climbMetresPerSecond() const { return climb_.value(); }
    double groundSpeedMetresPerSecond() const;
    double groundTrackRadians() const;
    double windToNorth() const { return windNorth_.value(); }
    double windToEast() const { return windEast_.value(); }
    bool onGround() const { return onGround_; }

private:
    void stepAir(double seconds);
    void stepGround(double seconds);
    void updateAir();
    void updateGround();

    bool onGround_ = true;
    GroundPoint point_;
    double altitude_ = 0.0;
    double elevation_ = 0.0;
    double course_ = 0.0;
    double slope_ = 0.0;

    SmoothFollower windNorth_{0.5, 1.0};
    SmoothFollower windEast_{0.5, 1.0};
    SmoothFollower climb_{1.5, 1.5};
    SmoothFollower airspeed_{0.6, 1.2};
    SmoothFollower bank_{2.5, 0.21};
    SmoothFollower attack_{3.0, 0.2};
    SmoothFollower ball_{1.5, 0.1};
    SmoothFollower crab_{0.8, 0.1};
    SmoothFollower groundSpeed_{0.5, 2.0};
    SmoothFollower lateralSpeed_{1.5, 1.0};
    SmoothFollower courseError_{1.5, 0.1};
    SmoothFollower groundPitch_{1.5, 0.1};

    double airCourse_ = 0.0;
    double airCourseRate_ = 0.0;
    double trueAirspeed_ = 0.0;
    double pitch_ = 0.0, pitchRate_ = 0.0;
    double heading_ = 0.0, headingRate_ = 0.0;
    double loadFactor_ = 1.0;
    NedVector velocity_;
    NedVector acceleration_;
};

} // namespace skyvane

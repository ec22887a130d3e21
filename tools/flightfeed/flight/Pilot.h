#pragma once

#include "flightfeed/flight/FlightModel.h"

namespace skyvane {

/// The hands on the controls: holds and changes course, altitude and track by setting the model's controls.
/// The model outlives the pilot. Call one lateral and one vertical function before each step of the model.
class Pilot {
public:
    explicit Pilot(FlightModel& model) : model_(model) {}

    double courseRadians = 0.0; ///< the air course to hold: the heading, as long as the ball is in the middle
    double altitudeMetres = 0.0;

    void holdCourse();
    void holdAltitude(double greatestClimb = 2.5);
    /// At that turn rate, right positive; the ball's own bank is added.
    void turnAt(double radiansPerSecond, double greatestBank);
    /// Turns at up to standard rate towards the course over ground, corrected for the wind.
    void steerTrack(double trackRadians);
    /// Keeps the course of this moment from now on.
    void takeCourse() { courseRadians = model_.airCourseRadians(); }

    FlightModel& model() { return model_; }

private:
    void turnTowards(double airCourse);

    FlightModel& model_;
};

/// Three degrees per second: two minutes for the whole circle.
constexpr double STANDARD_RATE_RADIANS_PER_SECOND = 0.05235987755982988;
/// How briskly a pilot takes out what is left of a turn: part of it per second.
constexpr double TURN_GAIN_PER_SECOND = 0.4;

} // namespace skyvane

#include "flightfeed/flight/FlightModel.h"

#include "flightfeed/flight/StandardAtmosphere.h"
#include "flightfeed/flight/Units.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

namespace {

constexpr double SEA_LEVEL_DENSITY = 1.225;
constexpr double WING_LOADING_PASCALS = 630.0;
constexpr double LIFT_SLOPE_PER_RADIAN = 5.0;
constexpr double ZERO_LIFT_RADIANS = -0.061;
constexpr double GREATEST_LIFT_COEFFICIENT = 1.6;
constexpr double SIDE_FORCE_PER_RADIAN = 0.35;
constexpr double SLOWEST_METRES_PER_SECOND = 20.0;

double dynamicPressure(double airspeed) {
    const double v = std::max(airspeed, SLOWEST_METRES_PER_SECOND);
    return 0.5 * SEA_LEVEL_DENSITY * v * v;
}

double angleOfAttack(double airspeed, double loadFactor) {
    const double lift = loadFactor * WING_LOADING_PASCALS / dynamicPressure(airspeed);
    return std::clamp(lift, 0.0, GREATEST_LIFT_COEFFICIENT) / LIFT_SLOPE_PER_RADIAN + ZERO_LIFT_RADIANS;
}

// Change of the logarithm of true over indicated airspeed per metre of altitude.
double airspeedGainPerMetre(double altitude) {
    return -0.25 * std::log(standardDensityRatio(altitude + 1.0) / standardDensityRatio(altitude - 1.0));
}

} // namespace

void FlightModel::placeOnGround(const GroundPoint& point, double elevationMetres, double courseRadians) {
    *this = FlightModel();
    point_ = point;
    altitude_ = elevation_ = elevationMetres;
    course_ = courseRadians;
    updateGround();
}

void FlightModel::placeInAir(const GroundPoint& point, double altitudeMetres, double headingRadians,
                             double airspeedMetresPerSecond) {
    *this = FlightModel();
    onGround_ = false;
    point_ = point;
    altitude_ = altitudeMetres;
    airCourse_ = headingRadians;
    airspeed_.reset(airspeedMetresPerSecond);
    controls.airspeedMetresPerSecond = airspeedMetresPerSecond;
    attack_.reset(angleOfAttack(airspeedMetresPerSecond, 1.0));
    updateAir();
}

void FlightModel::settleWind() {
    windNorth_.reset(controls.windToNorthMetresPerSecond);
    windEast_.reset(controls.windToEastMetresPerSecond);
    onGround_ ? updateGround() : updateAir();
}

void FlightModel::liftOff() {
    const double airNorth = velocity_.north - windNorth_.value();
    const double airEast = velocity_.east - windEast_.value();
    airCourse_ = std::atan2(airEast, airNorth);
    const double gain = std::sqrt(standardDensityRatio(altitude_));
    airspeed_.reset(gain * std::hypot(airNorth, airEast), gain * groundSpeed_.rate());
    attack_.reset(pitch_, pitchRate_);
    crab_.reset(wrapRadians(airCourse_ - heading_));
    ball_.reset(0.0);
    onGround_ = false;
    updateAir();
}

void FlightModel::touchDown(double elevationMetres, double courseRadians, double slope) {
    elevation_ = elevationMetres;
    slope_ = slope;
    course_ = courseRadians;
    const double north = std::cos(course_), east = std::sin(course_);
    groundSpeed_.reset(velocity_.north * north + velocity_.east * east,
                       acceleration_.north * north + acceleration_.east * east);
    lateralSpeed_.reset(velocity_.east * north - velocity_.north * east,
                        acceleration_.east * north - acceleration_.north * east);
    courseError_.reset(wrapRadians(heading_ - course_), headingRate_);
    groundPitch_.reset(pitch_, pitchRate_);
    onGround_ = true;
    updateGround();
}

void FlightModel::step(double seconds) {
    const NedVector before = velocity_;
    windNorth_.follow(controls.windToNorthMetresPerSecond, seconds);
    windEast_.follow(controls.windToEastMetresPerSecond, seconds);
    if (onGround_)
        stepGround(seconds);
    else
        stepAir(seconds);
    altitude_ -= 0.5 * seconds * (before.down + velocity_.down);
    moveBy(point_, altitude_, 0.5 * seconds * (before.north + velocity_.north),
           0.5 * seconds * (before.east + velocity_.east));
}

void FlightModel::stepAir(double seconds) {
    climb_.follow(controls.climbMetresPerSecond, seconds);
    airspeed_.follow(controls.airspeedMetresPerSecond, seconds);
    bank_.follow(controls.bankRadians, seconds);
    ball_.follow(controls.ballRadians, seconds);
    crab_.follow(controls.crabRadians, seconds);
    attack_.follow(angleOfAttack(airspeed_.value(), loadFactor_), seconds);
    airCourse_ = wrapRadians(airCourse_ + airCourseRate_ * seconds);
    updateAir();
}

void FlightModel::updateAir() {
    const double toTrue = 1.0 / std::sqrt(standardDensityRatio(altitude_));
    const double climb = climb_.value();
    const double speed = trueAirspeed_ = airspeed_.value() * toTrue;
    const double speedRate = airspeed_.rate() * toTrue + speed * airspeedGainPerMetre(altitude_) * climb;
    const double level = std::sqrt(std::max(1.0, speed * speed - climb * climb));
    const double levelRate = (speed * speedRate - climb * climb_.rate()) / level;

    // The side force of a slip comes from the air that meets the fuselage from the side.
    const double slipPerTangent = WING_LOADING_PASCALS / (SIDE_FORCE_PER_RADIAN * dynamicPressure(airspeed_.value()));
    const double tangent = std::tan(ball_.value());
    const double slip = slipPerTangent * tangent + crab_.value();
    const double slipRate = slipPerTangent * ((1.0 + tangent * tangent) * ball_.rate() -
                                              2.0 * tangent * airspeed_.rate() / airspeed_.value()) +
                            crab_.rate();

    const double roll = bank_.value(), attack = attack_.value();
    const double sinRoll = std::sin(roll), cosRoll = std::cos(roll);
    pitch_ = std::asin(climb / speed) + attack * cosRoll;
    heading_ = airCourse_ - slip + attack * sinRoll;

    // The turn rate is the one that puts the specific force where the ball shows it.
    const double north = std::cos(airCourse_), east = std::sin(airCourse_);
    const BodyFrame body = bodyFrame(roll, pitch_, heading_);
    const NedVector ballSide{body.right.north - tangent * body.down.north, body.right.east - tangent * body.down.east,
                             body.right.down - tangent * body.down.down};
    const NedVector straight{levelRate * north + windNorth_.rate(), levelRate * east + windEast_.rate(),
                             -climb_.rate() - GRAVITY_METRES_PER_SECOND_SQUARED};
    airCourseRate_ = -dot(ballSide, straight) / (level * dot(ballSide, {-east, north, 0.0}));

    pitchRate_ = (climb_.rate() * speed - climb * speedRate) / (speed * level) + attack_.rate() * cosRoll -
                 attack * sinRoll * bank_.rate();
    headingRate_ = airCourseRate_ - slipRate + attack_.rate() * sinRoll + attack * cosRoll * bank_.rate();
    velocity_ = {level * north + windNorth_.value(), level * east + windEast_.value(), -climb};
    acceleration_ = {straight.north - level * airCourseRate_ * east, straight.east + level * airCourseRate_ * north,
                     -climb_.rate()};
    const NedVector force{acceleration_.north, acceleration_.east,
                          acceleration_.down - GRAVITY_METRES_PER_SECOND_SQUARED};
    loadFactor_ = -dot(body.down, force) / GRAVITY_METRES_PER_SECOND_SQUARED;
}

void FlightModel::stepGround(double seconds) {
    constexpr double settlePerSecond = 0.3;
    groundSpeed_.follow(controls.groundSpeedMetresPerSecond, seconds);
    const double rising = slope_ * groundSpeed_.value();
    elevation_ += rising * seconds;
    climb_.follow(rising + settlePerSecond * (elevation_ - altitude_), seconds);
    lateralSpeed_.follow(0.0, seconds);
    courseError_.follow(0.0, seconds);
    groundPitch_.follow(controls.groundPitchRadians, seconds);
    bank_.follow(0.0, seconds);
    updateGround();
}

void FlightModel::updateGround() {
    const double north = std::cos(course_), east = std::sin(course_);
    velocity_ = {groundSpeed_.value() * north - lateralSpeed_.value() * east,
                 groundSpeed_.value() * east + lateralSpeed_.value() * north, -climb_.value()};
    acceleration_ = {groundSpeed_.rate() * north - lateralSpeed_.rate() * east,
                     groundSpeed_.rate() * east + lateralSpeed_.rate() * north, -climb_.rate()};
    pitch_ = groundPitch_.value();
    pitchRate_ = groundPitch_.rate();
    heading_ = course_ + courseError_.value();
    headingRate_ = courseError_.rate();
    airCourse_ = heading_;
    airCourseRate_ = headingRate_;
    trueAirspeed_ = std::hypot(velocity_.north - windNorth_.value(), velocity_.east - windEast_.value());
}

double FlightModel::airspeedMetresPerSecond() const {
    // The tube points forward: it doesn't feel what comes from the side or from behind.
    const double forward = (velocity_.north - windNorth_.value()) * std::cos(heading_) +
                           (velocity_.east - windEast_.value()) * std::sin(heading_);
    return std::sqrt(standardDensityRatio(altitude_)) * std::hypot(std::max(0.0, forward), velocity_.down);
}

double FlightModel::groundSpeedMetresPerSecond() const {
    return std::hypot(velocity_.north, velocity_.east);
}

double FlightModel::groundTrackRadians() const {
    constexpr double standingMetresPerSecond = 0.1;
    if (groundSpeedMetresPerSecond() < standingMetresPerSecond)
        return heading_;
    return std::atan2(velocity_.east, velocity_.north);
}

void FlightModel::fill(FlightState& state) const {
    const double roll = bank_.value();
    const BodyFrame body = bodyFrame(roll, pitch_, heading_);
    const BodyRates rates = bodyRates(roll, pitch_, bank_.rate(), pitchRate_, headingRate_);
    const NedVector force{acceleration_.north, acceleration_.east,
                          acceleration_.down - GRAVITY_METRES_PER_SECOND_SQUARED};
    state.latitudeDegrees = point_.latitudeDegrees;
    state.longitudeDegrees = point_.longitudeDegrees;
    state.altitudeMetres = altitude_;
    state.velocityNorthMetresPerSecond = velocity_.north;
    state.velocityEastMetresPerSecond = velocity_.east;
    state.verticalSpeedMetresPerSecond = -velocity_.down;
    state.groundSpeedKnots = groundSpeedMetresPerSecond() / METRES_PER_SECOND_PER_KNOT;
    state.groundTrackDegrees = wrapDegrees360(toDegrees(groundTrackRadians()));
    state.indicatedAirspeedKnots = airspeedMetresPerSecond() / METRES_PER_SECOND_PER_KNOT;
    state.trueAirspeedKnots = trueAirspeed_ / METRES_PER_SECOND_PER_KNOT;
    state.rollDegrees = toDegrees(roll);
    state.pitchDegrees = toDegrees(pitch_);
    state.headingDegrees = wrapDegrees360(toDegrees(heading_));
    state.headingRateDegreesPerSecond = toDegrees(headingRate_);
    state.rollRateRadiansPerSecond = rates.roll;
    state.pitchRateRadiansPerSecond = rates.pitch;
    state.yawRateRadiansPerSecond = rates.yaw;
    state.specificForceForward = dot(body.forward, force);
    state.specificForceRight = dot(body.right, force);
    state.specificForceDown = dot(body.down, force);
    state.pressureMillibars = standardPressureMillibars(altitude_);
    state.temperatureCelsius = standardTemperatureCelsius(altitude_);
    state.onGround = onGround_;
}

} // namespace skyvane

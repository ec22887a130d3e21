#include "procedures/framework/CourseGuidance.h"

#include "chart/geodesy/Angles.h"
#include "chart/geodesy/EarthConstants.h"
#include "chart/geodesy/GreatCircle.h"
#include "chart/geodesy/LocalFrame.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace skyvane {
namespace {

using Place = irr::core::vector3d<double>;

constexpr double LeastHorizontalMetres = 0.1;
constexpr double SignificantTurnDegrees = 5.0;
constexpr double SignificantMetres = 500.0;
constexpr double FinishedMetres = 200.0;
constexpr double LeastKnots = 0.1;
constexpr double LongestSeconds = 2.0e9;

bool isFinite(const AircraftMotion& flight) {
    return std::isfinite(flight.position.longitude) && std::isfinite(flight.position.latitude) &&
           std::isfinite(flight.altitude) && std::isfinite(flight.groundSpeed) && std::isfinite(flight.heading);
}

/// How far along a segment, 0 to 1, the place nearest to a point lies.
double nearestShare(const Place& a, const Place& b, const Place& point) {
    const Place along = b - a;
    const double square = along.getLengthSQ();
    return square > 0.0 ? std::clamp((point - a).dotProduct(along) / square, 0.0, 1.0) : 0.0;
}

void calculateSteeringErrors(const AircraftMotion& flight, Guidance& guidance) {
    const Place aircraft = ChartPosition2Vector3df64(guidance.closestPosition, flight.position, 0.0);
    const double course = guidance.closestCourse / DegreesPerRadian;
    const Place direction(std::sin(course), 0.0, std::cos(course));
    const double along = aircraft.dotProduct(direction);
    const Place offset = aircraft - direction * along;
    const double heading = flight.heading / DegreesPerRadian;
    guidance.crossTrackError = offset.getLength() / MetresPerNauticalMile;
    guidance.steerSide = std::cos(heading) * offset.X - std::sin(heading) * offset.Z >= 0.0;
    guidance.pathAltitude = (guidance.closestSlope * std::fabs(along) + guidance.closestAltitude) / MetresPerFoot;
    guidance.altitudeError = flight.altitude / MetresPerFoot - guidance.pathAltitude;
}

} // namespace

struct CourseGuidance::Closest {
    size_t segment = 0; ///< From this element to the next.
    Place a, b, place;  ///< In the aircraft's frame.
};

void CourseGuidance::setList(CourseList list) {
    list_ = std::move(list);
    elements_.clear();
    for (const CourseElement& element : list_)
        elements_.push_back(&element);
    metresLeft_.assign(elements_.size(), 0.0);
    for (size_t i = elements_.size(); i-- > 1;)
        metresLeft_[i - 1] = metresLeft_[i] + calcDistance2(elements_[i - 1]->position, elements_[i]->position);
}

/// A segment takes the shorter way round the earth, also where its ends lie on both sides of the aircraft's far
/// meridian.
CourseGuidance::Closest CourseGuidance::findClosest(const AircraftMotion& flight) const {
    const Place aircraft(0.0, flight.altitude, 0.0);
    const double turn = 360.0 * MetresPerDegree * longitudeScale(flight.position.latitude);
    const auto place = [&flight](const CourseElement& element) {
        return ChartPosition2Vector3df64(flight.position, element.position, element.altitude);
    };
    Closest closest;
    double leastSquare = std::numeric_limits<double>::infinity();
    Place a = place(*elements_.front());
    for (size_t i = 0; i == 0 || i + 1 < elements_.size(); ++i) {
        const Place next = place(*elements_[std::min(i + 1, elements_.size() - 1)]);
        Place b = next;
        if (std::fabs(b.X - a.X) > turn / 2.0)
            b.X += b.X < a.X ? turn : -turn;
        const Place nearest = a + (b - a) * nearestShare(a, b, aircraft);
        const double square = nearest.getDistanceFromSQ(aircraft);
        if (square < leastSquare) {
            leastSquare = square;
            closest = {i, a, b, nearest};
        }
        a = next;
    }
    return closest;
}

/// The first element behind the segment that goes on in another direction, and not right at the closest position.
size_t CourseGuidance::findNext(size_t segment, const ChartPosition& closestPosition) const {
    const size_t last = elements_.size() - 1;
    const size_t end = std::min(segment + 1, last);
    const double reference = elements_[end]->course;
    for (size_t i = end + 1; i <= last; ++i)
        if (std::fabs(Angle180(elements_[i]->course - reference)) >= SignificantTurnDegrees &&
            calcDistance2(closestPosition, elements_[i]->position) > SignificantMetres)
            return i;
    return last;
}

void CourseGuidance::follow(const AircraftMotion& flight, Guidance& guidance) const {
    if (elements_.empty() || !isFinite(flight)) {
        guidance = Guidance();
        return;
    }
    const Closest closest = findClosest(flight);
    const Place along = closest.b - closest.a;
    const double horizontal = std::hypot(along.X, along.Z);
    const bool isPoint = !(horizontal > 0.0);
    guidance.closestPosition = Vector3df642ChartPosition(flight.position, closest.place);
    guidance.closestAltitude = closest.place.Y;
    guidance.closestCourse =
        isPoint ? elements_[closest.segment]->course : std::atan2(along.X, along.Z) * DegreesPerRadian;
    guidance.closestSlope = horizontal > LeastHorizontalMetres ? along.Y / horizontal : 0.0;
    guidance.closestDistanceMetres = std::hypot(closest.place.X, closest.place.Z);

    const size_t next = findNext(closest.segment, guidance.closestPosition);
    guidance.nextPosition = elements_[next]->position;
    guidance.bearing = calcBearing2(flight.position, guidance.nextPosition);
    guidance.length =
        (calcDistance2(flight.position, guidance.nextPosition) + metresLeft_[next]) / MetresPerNauticalMile;
    calculateSteeringErrors(flight, guidance);
    calculateTime(flight, guidance);
}

/// At a standstill nothing can be told of the time, and what was reached stays reached.
void CourseGuidance::calculateTime(const AircraftMotion& flight, Guidance& guidance) const {
    if (flight.groundSpeed < LeastKnots) {
        guidance.ete = -1;
        return;
    }
    const double seconds = guidance.length / flight.groundSpeed * 3600.0;
    guidance.ete = static_cast<int>(std::floor(std::min(seconds, LongestSeconds) + 0.5));
    guidance.finished = guidance.closestDistanceMetres < FinishedMetres &&
                        calcDistance2(flight.position, elements_.back()->position) < FinishedMetres;
}

} // namespace skyvane

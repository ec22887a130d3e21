#pragma once

#include "procedures/course/CourseElement.h"

#include <cstddef>
#include <vector>

namespace skyvane {

/// Where an aircraft is, and how it moves.
struct AircraftMotion {
    ChartPosition position;
    double altitude = 0.0;    ///< metres
    double groundSpeed = 0.0; ///< knots
    double heading = 0.0;     ///< degrees true
};

/// How an aircraft flies along a path.
struct Guidance {
    double bearing = -1.0; ///< Degrees true to the next significant point, -1 without a path.
    double length = -1.0;  ///< Nautical miles left: to that point, and along the path from there.
    int ete = -1;          ///< Seconds left; -1 when slower than 0.1 knots.
    // The nearest point of the path, and the segment that holds it.
    ChartPosition closestPosition;
    double closestCourse = 0.0;         ///< degrees true
    double closestAltitude = 0.0;       ///< metres
    double closestSlope = 0.0;          ///< climb over horizontal length
    double closestDistanceMetres = 0.0; ///< horizontal
    ChartPosition nextPosition;         ///< The next significant point: where the course changes, or the end.
    double crossTrackError = 0.0;       ///< nautical miles
    double altitudeError = 0.0;         ///< feet, the aircraft's minus the path's
    double pathAltitude = 0.0;          ///< feet, abeam
    bool steerSide = true;              ///< The aircraft is right of the path, seen along its own heading.
    bool finished = false;              ///< Within 200 m of the path and of its end.
};

/// A path, and the figures for whoever flies along it.
///
/// setList measures the path once, in trigonometry; follow then projects each segment into the aircraft's local frame
/// and allocates nothing, so that it can run each frame on thousands of elements. The nearest segment is found by its
/// distance in three dimensions: of two legs above each other the one at the aircraft's altitude counts.
class CourseGuidance {
public:
    void setList(CourseList list);
    const CourseList& getList() const { return list_; }
    double getTotalMetres() const { return metresLeft_.empty() ? 0.0 : metresLeft_.front(); }

    /// Renews the figures; those of a standstill that can't be told keep their value. Values that aren't finite count
    /// as no path.
    void follow(const AircraftMotion& flight, Guidance& guidance) const;

private:
    struct Closest;

    Closest findClosest(const AircraftMotion& flight) const;
    size_t findNext(size_t segment, const ChartPosition& closestPosition) const;
    void calculateTime(const AircraftMotion& flight, Guidance& guidance) const;

    CourseList list_;
    std::vector<const CourseElement*> elements_; ///< Of the list, for whoever steps back and forth.
    std::vector<double> metresLeft_;             ///< From each element to the end.
};

} // namespace skyvane

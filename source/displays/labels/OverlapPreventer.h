#pragma once

#include "core/geometry/EngineMath.h"

#include <list>

namespace skyvane {

/// A rectangle that may be pushed aside. A heavy one moves less.
struct OverlapRecord {
    OverlapRecord(const irr::core::rect<double>& place, void* owner, int number, double mass)
        : weight(mass), rectangle(place), user(owner), index(number), width(place.getWidth()),
          height(place.getHeight()) {}

    double weight; ///< above 0
    irr::core::rect<double> rectangle;
    void* user;
    int index;
    double width; ///< of the rectangle that it started with
    double height;
};

/// Pushes a handful of rectangles apart: every corner that lies within another rectangle pushes both. For dozens, not
/// thousands: each round looks at every pair.
class OverlapPreventer {
public:
    std::list<OverlapRecord>& getRecords() { return records_; }

    /// At most that many rounds; fewer when nothing overlaps any more.
    void overlapSolver(int rounds);

private:
    bool pushApart(OverlapRecord& a, OverlapRecord& b);

    std::list<OverlapRecord> records_;
};

} // namespace skyvane

#include "displays/informationmath/RoutePlace.h"

#include "chart/geodesy/Angles.h"
#include "chart/geodesy/LocalFrame.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace skyvane {
namespace {

/// What is at most so much farther than the nearest place is as good.
constexpr double asGoodMetres = 150.0;

/// A row as seen from the aircraft, in metres.
class Surroundings {
public:
    Surroundings(const std::vector<ChartPosition>& row, const ChartPosition& aircraft)
        : row_(row), aircraft_(aircraft), scale_(longitudeScale(aircraft.latitude)) {}

    struct Point {
        double x, y;
    };
    Point at(size_t index) const {
        return {Angle180(row_[index].longitude - aircraft_.longitude) * scale_ * MetresPerDegree,
                (row_[index].latitude - aircraft_.latitude) * MetresPerDegree};
    }
    /// The point nearest to the aircraft on the way from one point to the next one of the row.
    static RoutePlace nearest(size_t index, const Point& from, const Point& to) {
        const double dx = to.x - from.x, dy = to.y - from.y, length = dx * dx + dy * dy;
        const double share = length > 0.0 ? std::clamp(-(from.x * dx + from.y * dy) / length, 0.0, 1.0) : 0.0;
        return {static_cast<double>(index) + share, std::hypot(from.x + share * dx, from.y + share * dy)};
    }
    template <class Visit>
    void forEach(Visit visit) const {
        Point from = at(0);
        for (size_t i = 1; i < row_.size(); ++i) {
            const Point to = at(i);
            visit(nearest(i - 1, from, to));
            from = to;
        }
    }

private:
    const std::vector<ChartPosition>& row_;
    ChartPosition aircraft_;
    double scale_;
};

} // namespace

bool isOnEarth(const ChartPosition& place) {
    return std::isfinite(place.longitude) && std::isfinite(place.latitude) && std::fabs(place.latitude) <= 90.0;
}

std::optional<RoutePlace> RoutePlaceFinder::find(const std::vector<ChartPosition>& row, const ChartPosition& aircraft) {
    if (row.size() < 2 || !isOnEarth(aircraft))
        return std::nullopt;
    const Surroundings around(row, aircraft);
    double least = std::numeric_limits<double>::infinity();
    around.forEach([&least](const RoutePlace& place) { least = std::min(least, place.distanceMetres); });
    if (!std::isfinite(least))
        return std::nullopt;
    // Of a stretch that is as good all along, its nearest place.
    std::optional<RoutePlace> best, local;
    const auto finish = [&] {
        if (local && (!best || std::fabs(local->index - last_) < std::fabs(best->index - last_)))
            best = local;
        local.reset();
    };
    around.forEach([&](const RoutePlace& place) {
        if (!(place.distanceMetres <= least + asGoodMetres))
            finish();
        else if (!local || place.distanceMetres < local->distanceMetres)
            local = place;
    });
    finish();
    if (best)
        last_ = best->index;
    return best;
}

} // namespace skyvane

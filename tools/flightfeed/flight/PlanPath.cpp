#include "flightfeed/flight/PlanPath.h"

#include "flightfeed/flight/Units.h"
#include "procedures/plan/FlightPlan.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace skyvane {

namespace {

double lengthOf(const GroundOffset& way) {
    return std::hypot(way.northMetres, way.eastMetres);
}

template <class Node>
double shareOf(const Node& a, const Node& b, double along) {
    return std::clamp((along - a.along) / (b.along - a.along), 0.0, 1.0);
}

} // namespace

PlanPath::PlanPath(FlightPlan& plan) {
    for (int i = plan.getCurrentIndex(); i < plan.getCount(); ++i)
        for (const CourseElement& element : plan.get(i)->getCourseList())
            add({element.position.latitude, wrapDegrees180(element.position.longitude)}, element.altitude);
}

void PlanPath::add(const GroundPoint& point, double altitude) {
    constexpr double samePlaceMetres = 0.5;
    const double step = nodes_.empty() ? 0.0 : lengthOf(offsetBetween(nodes_.back().point, point));
    if (nodes_.empty() || step > samePlaceMetres)
        nodes_.push_back({point, altitude, nodes_.empty() ? 0.0 : nodes_.back().along + step});
}

void PlanPath::moveTo(const GroundPoint& here, double reachMetres) {
    if (isEmpty())
        return;
    const double former = along_;
    double nearest = std::numeric_limits<double>::max();
    for (size_t i = after(former - reachMetres); i < nodes_.size() && nodes_[i - 1].along < former + reachMetres; ++i) {
        const Node &a = nodes_[i - 1], &b = nodes_[i];
        const GroundOffset way = offsetBetween(a.point, b.point), flown = offsetBetween(a.point, here);
        const double squared = way.northMetres * way.northMetres + way.eastMetres * way.eastMetres;
        const double inside = flown.northMetres * way.northMetres + flown.eastMetres * way.eastMetres;
        const double part = std::clamp(inside / squared, 0.0, 1.0);
        const double away =
            lengthOf({flown.northMetres - part * way.northMetres, flown.eastMetres - part * way.eastMetres});
        if (away >= nearest)
            continue;
        nearest = away;
        along_ = a.along + part * (b.along - a.along);
    }
}

/// The node at the end of the segment that holds this place.
size_t PlanPath::after(double along) const {
    const auto found = std::upper_bound(nodes_.begin() + 1, nodes_.end() - 1, along,
                                        [](double value, const Node& node) { return value < node.along; });
    return static_cast<size_t>(found - nodes_.begin());
}

double PlanPath::altitudeAt(double along) const {
    const size_t next = after(along);
    const Node &a = nodes_[next - 1], &b = nodes_[next];
    return a.altitude + (b.altitude - a.altitude) * shareOf(a, b, along);
}

double PlanPath::slopeAt(double along) const {
    const size_t next = after(along);
    const Node &a = nodes_[next - 1], &b = nodes_[next];
    return (b.altitude - a.altitude) / (b.along - a.along);
}

GroundPoint PlanPath::pointAt(double along) const {
    const size_t next = after(along);
    const Node &a = nodes_[next - 1], &b = nodes_[next];
    const double part = shareOf(a, b, along);
    return {a.point.latitudeDegrees + part * (b.point.latitudeDegrees - a.point.latitudeDegrees),
            a.point.longitudeDegrees + part * (b.point.longitudeDegrees - a.point.longitudeDegrees)};
}

} // namespace skyvane

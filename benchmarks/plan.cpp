#include "Bench.h"
#include "chart/geodesy/LocalFrame.h"
#include "procedures/course/CourseLines.h"
#include "procedures/direct/DirectProcedure.h"
#include "procedures/highway/HighwayBuilder.h"
#include "procedures/holding/HoldingProcedure.h"
#include "procedures/plan/FlightPlan.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <iterator>
#include <limits>
#include <thread>
#include <vector>

namespace skyvane {
namespace {

constexpr double FrameSeconds = 0.036;
constexpr int Procedures = 50;
constexpr size_t Elements = 5000;

/// Across a continent, 3,500 km in zigzags of 80 km, with a holding at each fifth place.
void fillContinental(FlightPlan& plan) {
    for (int i = 0; i < Procedures; ++i) {
        const ChartPosition place(-120.0 + 0.9 * i, 40.0 + (i % 2 == 0 ? 0.3 : -0.3));
        if (i % 5 == 4)
            plan.add(std::make_unique<HoldingProcedure>(place, HoldingProcedure::Pattern{80.0, 4.0, true}, nullptr));
        else
            plan.add(std::make_unique<DirectProcedure>(place, nullptr));
    }
    plan.setCurrent(0);
}

/// The paths of all procedures, in periods of a frame.
double recalculateFrames(bool smoke) {
    FlightPlan plan;
    fillContinental(plan);
    std::vector<double> seconds;
    for (int i = 0; i < (smoke ? 1 : 51); ++i)
        seconds.push_back(secondsOf([&plan] { plan.calculateCourseLists({-121.0, 40.0}, 1000.0, 90.0); }));
    return median(seconds) / FrameSeconds;
}

class LongPath : public IProcedure {
public:
    explicit LongPath(CourseList list) : IProcedure(nullptr) { setCourseList(std::move(list)); }
    void calculateCourseList(ChartPosition, double, double) override {}
    std::string getName() override { return "long"; }
    Type getType() override { return None; }
};

CourseList longPath() {
    CourseList list;
    for (int i = 0; list.size() < Elements; ++i)
        list.splice(list.end(), calcLine({-120.0 + 0.05 * i, 40.0 + 0.02 * (i % 2)},
                                         {-119.95 + 0.05 * i, 40.02 - 0.02 * (i % 2)}, 1000.0, 1000.0, 2, false));
    list.resize(Elements);
    return list;
}

/// The distance of the nearest segment: each is projected and measured, and nothing else is done.
double measureAll(const CourseList& list, const ChartPosition& own, double altitude) {
    const irr::core::vector3d<double> aircraft(0.0, altitude, 0.0);
    double least = std::numeric_limits<double>::infinity();
    for (auto a = list.begin(), b = std::next(a); b != list.end(); a = b++) {
        const auto from = ChartPosition2Vector3df64(own, a->position, a->altitude);
        const auto along = ChartPosition2Vector3df64(own, b->position, b->altitude) - from;
        const double share = std::clamp((aircraft - from).dotProduct(along) / along.getLengthSQ(), 0.0, 1.0);
        least = std::min(least, (from + along * share).getDistanceFrom(aircraft));
    }
    return least;
}

/// All figures of a frame, against that pass over the same path.
double update(bool smoke) {
    LongPath path(longPath());
    ChartPosition own(-110.0, 40.05);
    double sum = 0.0;
    const auto follow = [&] {
        own.longitude += 0.001;
        path.updatePosRelated(own, 1010.0, 120.0, 90.0);
        sum += path.getLength();
    };
    const auto measure = [&] { sum += measureAll(path.getCourseList(), own, 1010.0); };
    const double ratio = ratioOfMedians(
        smoke ? 1 : 101, [&] { return secondsOf(follow); }, [&] { return secondsOf(measure); });
    return sum > 0.0 ? ratio : std::nan("");
}

/// The longest that a frame waits for the highway while its thread is at work all the time: each frame tells the
/// aircraft's place, every tenth one brings another path of 5,000 elements. In periods of a frame.
double highwayFrames(bool smoke) {
    const CourseList path = longPath();
    HighwayBuilder highway;
    if (!highway.start())
        return std::nan("");
    HighwayMesh mesh;
    HighwayBuilder::Aircraft aircraft{true, {-110.0, 40.05}, 1010.0, {}};
    double longest = 0.0;
    int meshes = 0;
    for (int frame = 0; frame < (smoke ? 30 : 1000); ++frame) {
        longest = std::max(longest, secondsOf([&] {
                               if (frame % 10 == 0)
                                   highway.setPath(path);
                               aircraft.position.longitude += 0.1; // worn each time
                               meshes += highway.exchange(aircraft, mesh) ? 1 : 0;
                           }));
        std::this_thread::sleep_for(std::chrono::microseconds(frame % 3 * 500));
    }
    return meshes > 0 ? longest / FrameSeconds : std::nan("");
}

} // namespace

std::vector<Bench> planBenches() {
    return {{"plan.recalculate-frames", Bench::Bound::AtMost, 1, recalculateFrames},
            {"plan.update", Bench::Bound::AtMost, 2, update},
            {"plan.highway-frames", Bench::Bound::AtMost, 0.5, highwayFrames}};
}

} // namespace skyvane

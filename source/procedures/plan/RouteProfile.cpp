#include "procedures/plan/RouteProfile.h"

#include "chart/geodesy/Angles.h"
#include "chart/geodesy/GreatCircle.h"
#include "procedures/plan/FlightPlan.h"
#include "terrain/mesh/TerrainColor.h"

#include <algorithm>

namespace skyvane {
namespace {

struct Station {
    const CourseElement* element;
    double metres; ///< Along the path.
};

/// What lies along the paths.
struct Stations {
    std::vector<Station> stations;
    std::vector<RouteProfile::Mark> marks;
    std::vector<RouteProfile::Stop> stops;
};

RouteProfile::Stop stopOf(const IProcedure& procedure, const Station& last) {
    return {procedure.getLocation(), last.metres, last.element->altitude,
            procedure.getLocationAltitude() != ProcedureValues::NoAltitude};
}

Stations stationsOf(FlightPlan& plan) {
    Stations found;
    auto& stations = found.stations;
    for (int i = plan.getCurrentIndex(); i < plan.getCount(); ++i) {
        const IProcedure* procedure = plan.get(i);
        for (const CourseElement& element : procedure->getCourseList()) {
            const double step =
                stations.empty() ? 0.0 : calcDistance2(stations.back().element->position, element.position);
            stations.push_back({&element, stations.empty() ? 0.0 : stations.back().metres + step});
        }
        if (procedure->getLocationType() == ProcedureLocation::ChartElement && !stations.empty())
            found.marks.push_back({procedure->getLocationChartIndex(), stations.back().metres});
        if (!procedure->getCourseList().empty())
            found.stops.push_back(stopOf(*procedure, stations.back()));
    }
    return found;
}

double between(double a, double b, double share) {
    return a + (b - a) * share;
}

} // namespace

std::unique_ptr<RouteProfile> createPointCallFromProcedures(FlightPlan& plan, ITerrainPointCallback* caller,
                                                            int points) {
    Stations found = stationsOf(plan);
    const std::vector<Station>& stations = found.stations;
    if (stations.size() < 2 || points < 2)
        return nullptr;
    const double total = stations.back().metres;
    const double stepMetres = total / (points - 1);
    std::vector<ChartPosition> positions;
    std::vector<float> altitudes;
    size_t next = 1;
    for (int i = 0; i < points; ++i) {
        const double metres = stepMetres * i;
        while (next + 1 < stations.size() && stations[next].metres < metres)
            ++next;
        const Station& a = stations[next - 1];
        const Station& b = stations[next];
        const double share =
            b.metres > a.metres ? std::clamp((metres - a.metres) / (b.metres - a.metres), 0.0, 1.0) : 0.0;
        const ChartPosition &from = a.element->position, &to = b.element->position;
        positions.emplace_back(Angle180(from.longitude + Angle180(to.longitude - from.longitude) * share),
                               between(from.latitude, to.latitude, share));
        altitudes.push_back(static_cast<float>(between(a.element->altitude, b.element->altitude, share)));
    }
    const double halfKilometres = total / 1000.0 / 2.0;
    const double detail = halfKilometres / (points - 1);
    auto profile = std::make_unique<RouteProfile>(caller, std::move(positions), std::max(detail * detail, 1e-6));
    profile->pathAltitudes = std::move(altitudes);
    profile->marks = std::move(found.marks);
    profile->stops = std::move(found.stops);
    profile->totalMetres = total;
    return profile;
}

void paintSideProfile(const PointCall& profile, int rows, uint32_t* pixels) {
    const float range = std::max(1.0f, profile.maximum - profile.minimum);
    const size_t width = profile.heights.size();
    for (int row = 0; row < rows; ++row) {
        const float height = profile.maximum - range * static_cast<float>(row) / static_cast<float>(rows - 1);
        const uint32_t color =
            calcTerrainColor(0.0f, height, profile.minimum, profile.maximum, false, false, TerrainShading::Shader);
        for (size_t column = 0; column < width; ++column)
            pixels[static_cast<size_t>(row) * width + column] =
                height > profile.heights[column] || !profile.known[column] ? 0 : color;
    }
}

} // namespace skyvane

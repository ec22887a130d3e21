#include "procedures/plan/AirportCorridor.h"

#include "chart/areas/AreaLeaf.h"
#include "chart/elements/IChartElement.h"
#include "chart/geodesy/Angles.h"
#include "chart/geodesy/EarthRectangles.h"
#include "chart/geodesy/LocalFrame.h"
#include "chart/store/IChartElementSource.h"
#include "procedures/plan/FlightPlan.h"

#include <algorithm>
#include <iterator>
#include <set>

namespace skyvane {
namespace {

using Place = irr::core::vector3d<double>;

constexpr unsigned char TypeBits = 0x3f;
enum AirportBits : unsigned char { Closed = 1, Heliport = 2, Private = 4, Gliders = 8, Military = 32, NoRunways = 64 };

struct Segment {
    ChartPosition a, b;
};

struct Airport {
    ChartPosition position;
    AirportRecord record;
};

std::vector<Segment> segmentsOf(FlightPlan& plan) {
    std::vector<Segment> segments;
    for (int i = plan.getCurrentIndex(); i < plan.getCount(); ++i) {
        const CourseList& list = plan.get(i)->getCourseList();
        for (auto b = list.begin(); b != list.end(); ++b)
            if (b != list.begin())
                segments.push_back({std::prev(b)->position, b->position});
    }
    return segments;
}

/// Makes a rectangle of two that lie near each other, going east from the west edge.
void join(ChartPosition& nw, ChartPosition& se, const ChartPosition& otherNw, const ChartPosition& otherSe) {
    const double width = Angle0to360(se.longitude - nw.longitude);
    const double west = Angle180(otherNw.longitude - nw.longitude);
    const double east = std::max(width, west + Angle0to360(otherSe.longitude - otherNw.longitude));
    const double start = nw.longitude;
    nw = ChartPosition(Angle0to360(start + std::min(0.0, west)), std::max(nw.latitude, otherNw.latitude));
    se = ChartPosition(Angle0to360(start + std::min(east, 359.9)), std::min(se.latitude, otherSe.latitude));
}

std::set<int> leafsAlong(const std::vector<Segment>& segments, IChartElementSource& charts, double width) {
    std::set<int> leafs;
    for (const Segment& segment : segments) {
        ChartPosition nw, se, otherNw, otherSe;
        calcRectangleAround(nw, se, segment.a, width);
        calcRectangleAround(otherNw, otherSe, segment.b, width);
        for (ChartPosition* corner : {&nw, &se, &otherNw, &otherSe})
            corner->latitude = std::clamp(Angle180(corner->latitude), -90.0, 90.0);
        join(nw, se, otherNw, otherSe);
        const std::list<int> found = charts.getLeafesFromAreaList(charts.getBestFittingAreaList(nw, se, 1.0));
        leafs.insert(found.begin(), found.end());
    }
    return leafs;
}

bool isWanted(const uint8_t* bytes, const AirportKinds& kinds) {
    if ((bytes[0] & TypeBits) != IChartElement::AIRPORT || bytes[1] & Closed)
        return false;
    return (kinds.heliports || !(bytes[1] & Heliport)) && (kinds.privates || !(bytes[1] & Private)) &&
           (kinds.gliders || !(bytes[1] & Gliders)) && (kinds.military || !(bytes[1] & Military)) &&
           (kinds.withoutRunways || !(bytes[1] & NoRunways));
}

std::vector<Airport> airportsOf(const std::set<int>& leafs, IChartElementSource& charts, double width,
                                const AirportKinds& kinds) {
    std::vector<Airport> airports;
    std::set<int> known;
    for (const int index : leafs) {
        const AreaLeaf* leaf = charts.getArea(index)->asLeaf();
        for (size_t i = 0; leaf->isSane() && i < leaf->getElements().size(); ++i) {
            const int id = leaf->getElements()[i];
            if (!isWanted(&leaf->getStaticBytes()[i * AreaLeaf::BytesPerElement], kinds) || !known.insert(id).second)
                continue;
            if (const IChartElement* element = charts.getChartElement(id))
                airports.push_back({element->getPosition(), {id, 2.0 * width, 0}});
        }
    }
    return airports;
}

double distanceTo(const Segment& segment, const ChartPosition& position) {
    const Place a = ChartPosition2Vector3df64(position, segment.a, 0.0);
    const Place b = ChartPosition2Vector3df64(position, segment.b, 0.0);
    const Place along = b - a;
    const double square = along.getLengthSQ();
    const double share = square > 0.0 ? std::clamp(-a.dotProduct(along) / square, 0.0, 1.0) : 0.0;
    return (a + along * share).getLength();
}

} // namespace

std::vector<AirportRecord> findAirportsInCorridor(FlightPlan& plan, IChartElementSource& charts, double width,
                                                  const AirportKinds& kinds) {
    const std::vector<Segment> segments = segmentsOf(plan);
    std::vector<Airport> airports = airportsOf(leafsAlong(segments, charts, width), charts, width, kinds);
    uint64_t order = 0;
    for (const Segment& segment : segments)
        for (Airport& airport : airports) {
            const double distance = distanceTo(segment, airport.position);
            if (distance >= airport.record.distance)
                continue;
            airport.record.distance = distance;
            airport.record.order = ++order;
        }
    std::vector<AirportRecord> records;
    for (const Airport& airport : airports)
        if (airport.record.distance <= width / 2.0)
            records.push_back(airport.record);
    std::sort(records.begin(), records.end(), isAirportRecordSmaller);
    return records;
}

} // namespace skyvane

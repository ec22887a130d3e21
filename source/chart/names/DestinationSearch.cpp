#include "chart/names/DestinationSearch.h"

#include "chart/elements/AirportElement.h"
#include "chart/geodesy/Angles.h"
#include "chart/geodesy/EarthConstants.h"
#include "chart/geodesy/GreatCircle.h"
#include "chart/names/IndexCase.h"
#include "chart/names/RecentRing.h"
#include "chart/store/IChartElementSource.h"
#include "core/text/Numbers.h"

#include <algorithm>
#include <utility>

namespace skyvane {

namespace {

constexpr int nameLimit = 100;
constexpr int farthestNauticalMiles = 50;
constexpr size_t enoughAirports = 4;

} // namespace

std::optional<DestinationSearch::Rows> DestinationSearch::find(const Request& request, const RecentRing& recent) {
    const std::string text = upperCaseName(request.text);
    if (text.empty())
        return std::nullopt;
    const ChartPosition own = request.ownPosition.value_or(ChartPosition());
    std::vector<int> ids;
    if (text == NearestText)
        ids = nearestFirst(nearestAirports(own), own);
    else if (text == RecentText)
        ids = recent.ids();
    else if (request.isGiven)
        ids = {request.givenId};
    else
        ids = nearestFirst(names_(text, nameLimit), own);

    Rows found;
    for (const int id : ids)
        if (const IChartElement* element = chart_.getChartElement(id)) {
            if (request.isGiven && id == request.givenId)
                found.selected = static_cast<int>(found.rows.size());
            found.rows.push_back({id, element->getIndicatedLabel(true, request.metric)});
        }
    if (found.selected < 0 && !found.rows.empty())
        found.selected = 0;
    return found;
}

std::vector<int> DestinationSearch::nearestFirst(std::list<int> ids, const ChartPosition& own) {
    ids.sort();
    ids.unique();
    std::vector<std::pair<double, int>> byDistance;
    for (const int id : ids)
        if (const IChartElement* element = chart_.getChartElement(id))
            byDistance.emplace_back(calcDistance2(own, element->getPosition()), id);
    std::sort(byDistance.begin(), byDistance.end());
    std::vector<int> sorted;
    for (const auto& [metres, id] : byDistance)
        sorted.push_back(id);
    return sorted;
}

std::list<int> DestinationSearch::nearestAirports(const ChartPosition& own) {
    std::list<int> airports;
    for (int range = 1; range <= farthestNauticalMiles && airports.size() <= enoughAirports; ++range) {
        airports = chart_.findChartElementsInVicinity(own, range, true);
        airports.sort();
        airports.unique();
        airports.remove_if([this](int id) {
            const IChartElement* element = chart_.getChartElement(id);
            return element && element->getType() == IChartElement::AIRPORT &&
                   static_cast<const AirportElement*>(element)->isHeliport;
        });
    }
    return airports;
}

std::string DestinationSearch::distanceText(const std::optional<ChartPosition>& own,
                                            const std::optional<ChartPosition>& destination) {
    if (!own || !destination)
        return "Distance [NM]: n/A\nBearing [°]: n/A";
    const double bearing = Angle0to360(calcBearing2(*own, *destination));
    return "Distance [NM]: " + toFixedText(calcDistance2(*own, *destination) / MetresPerNauticalMile, 1) +
           "\nBearing [°]: " + toText(roundHalfAway(bearing));
}

std::string DestinationSearch::hintText(const std::string& text, bool offersNearest) {
    if (text.empty())
        return std::string("Type an identifier or a name, or press \"Recent\"") +
               (offersNearest ? " or \"Nrst\"." : ".");
    if (text == RecentText)
        return "No destination was chosen so far.";
    if (text == NearestText)
        return "No airport within " + toText(farthestNauticalMiles) + " NM.";
    return "Nothing found yet: type more letters.";
}

} // namespace skyvane

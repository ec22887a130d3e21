#pragma once

#include "chart/geodesy/ChartPosition.h"

#include <functional>
#include <list>
#include <optional>
#include <string>
#include <vector>

namespace skyvane {

class IChartElement;
class IChartElementSource;
class RecentRing;

/// The rows that a search box shows for what was typed, found without any window.
///
///     DestinationSearch search(chart, [&](auto& text, int limit) { return chart.getMatchingChartElements(text, limit);
///     }); if (const auto rows = search.find(request, recent)) show(*rows);
///
/// Holds references only; main thread, as the chart.
class DestinationSearch {
public:
    /// Texts with a meaning of their own, which buttons write into the box.
    static constexpr const char* NearestText = "---NRST---";
    static constexpr const char* RecentText = "---RECENT---";

    /// Ids of the elements whose names begin with a text in upper case, see Trie::getMatching.
    using NameLookUp = std::function<std::list<int>(const std::string& text, int limit)>;

    struct Request {
        std::string text;                         ///< As typed.
        std::optional<ChartPosition> ownPosition; ///< 0, 0 counts for the order without one.
        bool metric = false;
        bool isGiven = false; ///< Show the given element alone, unless the text asks for the nearest or recent ones.
        int givenId = 0;
    };
    struct Row {
        int id;
        std::string label;
    };
    struct Rows {
        std::vector<Row> rows;
        int selected = -1; ///< The given element's row, else the first; -1 without rows.
    };

    DestinationSearch(IChartElementSource& chart, NameLookUp names) : chart_(chart), names_(std::move(names)) {}

    /// Nothing for an empty text: what is shown stays. Airports near and names come nearest first, the recent ones in
    /// their order; what the chart doesn't know is left out.
    std::optional<Rows> find(const Request& request, const RecentRing& recent);

    /// "Distance [NM]: " and "Bearing [°]: ", "n/A" without both positions.
    static std::string distanceText(const std::optional<ChartPosition>& own,
                                    const std::optional<ChartPosition>& destination);
    /// What to do about an empty list, for what was typed. `offersNearest`: there is a button for the nearest airports.
    static std::string hintText(const std::string& text, bool offersNearest);

private:
    std::vector<int> nearestFirst(std::list<int> ids, const ChartPosition& own);
    std::list<int> nearestAirports(const ChartPosition& own);

    IChartElementSource& chart_;
    NameLookUp names_;
};

} // namespace skyvane

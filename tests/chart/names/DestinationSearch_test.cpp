#include "chart/names/DestinationSearch.h"

#include "chart/elements/AirportElement.h"
#include "chart/geodesy/GreatCircle.h"
#include "chart/names/IndexCase.h"
#include "chart/names/RecentRing.h"
#include "chart/names/Trie.h"
#include "chart/store/IChartElementSource.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>

namespace skyvane {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Airports on the equator, each so many minutes of arc (nautical miles) east of 10 degrees.
class FewAirports : public IChartElementSource {
public:
    void add(int id, const std::string& ident, double minutesEast, bool heliport = false) {
        AirportElement& airport = airports_[id];
        airport.ident = ident;
        airport.name = "Field";
        airport.isHeliport = heliport;
        airport.position = {10.0 + minutesEast / 60.0, 0.0};
        for (int i = 0; i < airport.getTrieInsertionNameCount(); ++i)
            names.insert(upperCaseName(airport.getTrieInsertionName(i)), id);
    }
    IChartElement* getChartElement(int id) override {
        const auto found = airports_.find(id);
        return found == airports_.end() ? nullptr : &found->second;
    }
    IArea* getArea(int) override { return nullptr; }
    std::list<int> findChartElementsInVicinity(ChartPosition position, double range, bool) override {
        ++asked;
        std::list<int> near;
        for (const auto& [id, airport] : airports_)
            if (calcDistance2(position, airport.position) <= range * 1852.0)
                near.insert(near.end(), 2, id); // as if it lay in two leaves
        return near;
    }

    Trie names;
    int asked = 0;

private:
    std::map<int, AirportElement> airports_;
};

class Search : public testing::Test {
protected:
    std::vector<int> ids(const std::string& text) {
        request.text = text;
        const auto lookUp = [this](const std::string& name, int limit) { return chart.names.getMatching(name, limit); };
        found = DestinationSearch(chart, lookUp).find(request, recent);
        std::vector<int> ids;
        if (found)
            for (const auto& row : found->rows)
                ids.push_back(row.id);
        return ids;
    }

    FewAirports chart;
    RecentRing recent;
    DestinationSearch::Request request;
    std::optional<DestinationSearch::Rows> found;
};

TEST_F(Search, namesNearestFirst) {
    chart.add(3, "ABCD", 30.0);
    chart.add(-1, "ABCX", 20.0);
    chart.add(7, "ABCZ", -5.0);
    chart.names.insert("ABC", 99); // unknown to the chart
    chart.names.insert("ABCDE", 3);
    request.ownPosition = ChartPosition(10.0, 0.0);
    EXPECT_THAT(ids("abc"), ElementsAre(7, -1, 3));
    EXPECT_EQ(found->rows[0].label, "ABCZ - Field - Airport");
    EXPECT_EQ(found->selected, 0);
    request.ownPosition.reset();
    EXPECT_THAT(ids("FIELD"), ElementsAre(7, -1, 3));
    EXPECT_THAT(ids("NONE"), IsEmpty());
    EXPECT_EQ(found->selected, -1);
    ids("");
    EXPECT_FALSE(found) << "nothing typed, nothing changes";
}

TEST_F(Search, nearestStopsWithMoreThanFour) {
    request.ownPosition = ChartPosition(10.0, 0.0);
    for (int id = 0; id < 8; ++id)
        chart.add(id, "A", 2.9 + id);
    chart.add(20, "H", 1.0, true);
    EXPECT_THAT(ids(DestinationSearch::NearestText), ElementsAre(0, 1, 2, 3, 4)) << "each once";
    EXPECT_EQ(chart.asked, 7);
    request.ownPosition = ChartPosition(100.0, 50.0);
    EXPECT_THAT(ids(DestinationSearch::NearestText), IsEmpty());
    EXPECT_EQ(chart.asked, 7 + 50);
}

TEST_F(Search, recentOnesKeepTheirOrder) {
    chart.add(1, "A", 50.0);
    chart.add(2, "B", 1.0);
    for (const int id : {2, 555, 1})
        recent.note(id);
    EXPECT_THAT(ids(DestinationSearch::RecentText), ElementsAre(1, 2));
}

TEST_F(Search, theGivenElementAlone) {
    chart.add(1, "A", 1.0);
    chart.add(2, "A", 2.0);
    request.isGiven = true;
    request.givenId = 2;
    EXPECT_THAT(ids("A"), ElementsAre(2));
    EXPECT_EQ(found->selected, 0);
    recent.note(2);
    recent.note(1);
    EXPECT_THAT(ids(DestinationSearch::RecentText), ElementsAre(1, 2));
    EXPECT_EQ(found->selected, 1);
}

TEST(DestinationSearch, distanceText) {
    const ChartPosition own(10.0, 0.0);
    EXPECT_EQ(DestinationSearch::distanceText(own, ChartPosition(9.0, 0.0)), "Distance [NM]: 60.0\nBearing [°]: 270");
    EXPECT_EQ(DestinationSearch::distanceText(own, std::nullopt), "Distance [NM]: n/A\nBearing [°]: n/A");
    EXPECT_EQ(DestinationSearch::distanceText(std::nullopt, own), "Distance [NM]: n/A\nBearing [°]: n/A");
}

TEST(DestinationSearch, hintsAreForWhatWasAskedFor) {
    EXPECT_NE(DestinationSearch::hintText("", true).find("\"Nrst\""), std::string::npos);
    EXPECT_EQ(DestinationSearch::hintText("", false), "Type an identifier or a name, or press \"Recent\".");
    EXPECT_EQ(DestinationSearch::hintText(DestinationSearch::NearestText, true), "No airport within 50 NM.");
    EXPECT_NE(DestinationSearch::hintText(DestinationSearch::RecentText, true), DestinationSearch::hintText("x", true));
}

} // namespace

} // namespace skyvane

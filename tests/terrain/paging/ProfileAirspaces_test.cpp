#include "chart/elements/AirspaceElement.h"
#include "chart/store/ChartFixture.h"
#include "core/time/Time.h"
#include "terrain/paging/TerrainRequests.h"

#include <cmath>

namespace skyvane {
namespace {

class Airspaces : public ChartTest {
protected:
    static std::unique_ptr<IChartElement> airspace(std::vector<ChartPosition> vertices, const char* kind = "D") {
        auto element = std::make_unique<AirspaceElement>();
        element->airspaceClass = kind;
        element->topFeet = 5000;
        element->vertices = std::move(vertices);
        element->recalculateBoundingBox();
        return element;
    }
    static std::unique_ptr<IChartElement> box(double west, double south, double east, double north,
                                              const char* kind = "D") {
        return airspace({{west, south}, {east, south}, {east, north}, {west, north}}, kind);
    }
    /// A row of positions from west to east, and its call.
    static PointCall eastward(double west, double east, double latitude, int count) {
        std::vector<ChartPosition> row;
        for (int i = 0; i < count; ++i)
            row.emplace_back(west + (east - west) * i / (count - 1), latitude);
        return PointCall(nullptr, row, 1.0);
    }
    static int fill(PointCall& call, ChartStore& store, double seconds) {
        int slices = 1;
        for (call.prepareAirspaceFill(&store); !call.continueAirspaceFill(seconds); ++slices)
            EXPECT_LT(slices, 100000);
        call.finishAirspaceFill();
        return slices;
    }
    static std::string text(const PointCall& call) {
        std::string text;
        for (const auto& stretch : call.airspaces.getStretches())
            text += std::to_string(stretch.element) + ":" + std::to_string(stretch.first) + "-" +
                    std::to_string(stretch.last) + " ";
        return text;
    }
};

TEST_F(Airspaces, areThoseThatTheWayTouches) {
    Elements elements;
    elements.push_back(box(8.25, 49.9, 8.55, 50.3));
    elements.push_back(box(8.0, 50.05, 9.0, 50.3));      // beside the way
    elements.push_back(box(8.42, 49.0, 8.48, 51.0));     // between two positions
    elements.push_back(box(8.0, 49.9, 9.0, 50.3, "TP")); // no airspace to be flown through
    elements.push_back(mark("no airspace", 8.3, 50.0));
    // A horseshoe that is left and entered again, and a corner that is cut.
    elements.push_back(airspace({{8.15, 49.8},
                                 {8.95, 49.8},
                                 {8.95, 50.2},
                                 {8.75, 50.2},
                                 {8.75, 49.9},
                                 {8.35, 49.9},
                                 {8.35, 50.2},
                                 {8.15, 50.2}}));
    elements.push_back(airspace({{8.62, 49.5}, {8.68, 49.5}, {8.65, 50.01}}));
    install("V", "a", elements);
    const auto store = open();
    PointCall call = eastward(8.0, 9.0, 50.0, 11);
    EXPECT_FALSE(call.isFilled());
    fill(call, *store, 1.0);
    EXPECT_EQ(text(call), "5:1-4 0:2-6 2:4-5 6:6-7 5:7-10 ");
    PointCall aside = eastward(8.0, 9.0, 52.0, 11);
    fill(aside, *store, 1.0);
    EXPECT_EQ(text(aside), "");
    PointCall nowhere(nullptr, {}, 1.0), wrong(nullptr, {{NAN, 50.0}, {8.3, HUGE_VAL}}, 1.0);
    fill(nowhere, *store, 1.0);
    fill(wrong, *store, 1.0);
    EXPECT_EQ(text(nowhere) + text(wrong), "");
}

TEST_F(Airspaces, areFoundInTheWestHoweverLongitudesAreCounted) {
    Elements elements;
    elements.push_back(box(-28.55, 41.9, -28.25, 42.3));
    install("V", "a", elements);
    const auto store = open();
    for (const double turn : {0.0, 360.0}) {
        PointCall call = eastward(turn - 29.0, turn - 28.0, 42.0, 11);
        fill(call, *store, 1.0);
        EXPECT_EQ(text(call), "0:4-8 ");
    }
}

TEST_F(Airspaces, reachAcrossTheAntimeridian) {
    Elements elements;
    elements.push_back(box(179.45, -1.0, 180.55, 1.0));
    install("V", "a", elements);
    const auto store = open();
    PointCall call = eastward(179.0, 181.0, 0.0, 21);
    for (ChartPosition& position : call.positions)
        position.longitude = position.longitude > 180.0 ? position.longitude - 360.0 : position.longitude;
    fill(call, *store, 1.0);
    EXPECT_EQ(text(call), "0:4-16 ");
}

TEST_F(Airspaces, areFoundASliceAtATimeAlike) {
    Elements elements;
    for (int i = 0; i < 40; ++i)
        elements.push_back(box(8.0 + 0.01 * i, 49.9, 8.3 + 0.01 * i, 50.1));
    install("V", "a", elements);
    const auto store = open();
    PointCall whole = eastward(8.0, 9.0, 50.0, 200), sliced = whole;
    EXPECT_EQ(fill(whole, *store, 60.0), 1);
    EXPECT_EQ(fill(sliced, *store, 0.0), 40 * 13);
    EXPECT_EQ(text(sliced), text(whole));
    EXPECT_EQ(whole.airspaces.getStretches().size(), 40u);
}

} // namespace
} // namespace skyvane

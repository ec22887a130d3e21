// What a side view shows: airspaces and course points along a profile, and a picture in which no words lie over others.
#include "chart/elements/AirspaceElement.h"
#include "chart/geodesy/EarthConstants.h"
#include "chart/store/ChartFixture.h"
#include "displays/informationmath/SideLabels.h"
#include "displays/mapmath/elements/AirspaceStyles.h"
#include "procedures/plan/RouteProfile.h"
#include "support/AllocationCounter.h"

#include <cmath>
#include <random>

namespace skyvane {
namespace {

/// A profile to the east along 42 degrees north, filled.
RouteProfile eastward(double west, double east, size_t points, double altitude) {
    std::vector<ChartPosition> row;
    for (size_t i = 0; i < points; ++i)
        row.emplace_back(west + (east - west) * static_cast<double>(i) / static_cast<double>(points - 1), 42.0);
    RouteProfile profile(nullptr, row, 1.0);
    profile.pathAltitudes.assign(points, static_cast<float>(altitude));
    profile.totalMetres = (east - west) * MetresPerDegree * std::cos(42.0 * M_PI / 180.0);
    profile.minimum = 0.0f;
    profile.maximum = 500.0f;
    return profile;
}

class SideAirspaces : public ChartTest {
protected:
    static std::unique_ptr<AirspaceElement> box(double west, double east, const char* kind, int floor, int ceiling) {
        auto element = std::make_unique<AirspaceElement>();
        element->airspaceClass = kind;
        element->name = std::string("Over ") + kind;
        element->bottomFeet = floor;
        element->topFeet = ceiling;
        element->vertices = {{west, 41.9}, {east, 41.9}, {east, 42.1}, {west, 42.1}};
        element->recalculateBoundingBox();
        return element;
    }
    static void fill(RouteProfile& profile, ChartStore& store) {
        profile.prepareAirspaceFill(&store);
        while (!profile.continueAirspaceFill(1.0)) {
        }
        profile.finishAirspaceFill();
    }
    static std::wstring text(const std::vector<SideAirspace>& airspaces) {
        std::wstring text;
        for (const SideAirspace& each : airspaces)
            text.append(each.name.view())
                .append(L" ")
                .append(each.limits.view())
                .append(each.isCrossed ? L"! " : L"; ");
        return text;
    }
};

TEST_F(SideAirspaces, areThoseThatMatterOnTheWay) {
    Elements elements;
    elements.push_back(box(8.205, 8.395, "D", 0, 2500));
    static_cast<AirspaceElement&>(*elements.back()).isBottomMsl = false;
    elements.push_back(box(8.305, 8.495, "RA", 4500, AirspaceElement::Unlimited));
    elements.push_back(box(8.1, 8.2, "FIR", 0, 50000));
    elements.push_back(box(8.25, 8.3, "C", 1000, 9000));
    static_cast<AirspaceElement&>(*elements.back()).excludes = true;
    elements.push_back(box(8.8, 8.9, "C", 1000, 9000)); // too far
    install("V", "a", elements);
    const auto store = open();
    RouteProfile profile = eastward(8.0, 9.0, 101, 3000.0 * MetresPerFoot);
    fill(profile, *store);
    const auto noFir = [](const std::string& airspaceClass) { return airspaceClass == "FIR"; };
    const double limit = 0.79 * profile.totalMetres;
    std::vector<SideAirspace> found = collectSideAirspaces(profile, *store, {limit, false, noFir});
    EXPECT_EQ(text(found), L"D  Over D SFC - 2500; RA  Over RA 4500 - UNL; ");
    EXPECT_EQ(found[0].first, 20u);
    EXPECT_EQ(found[0].last, 40u);
    profile.pathAltitudes.assign(101, static_cast<float>(5000.0 * MetresPerFoot));
    EXPECT_EQ(text(collectSideAirspaces(profile, *store, {limit, true, noFir})),
              L"D  Over D SFC - 762; RA  Over RA 1372 - UNL! ");
    found = collectSideAirspaces(profile, *store, {0.355 * profile.totalMetres, false, nullptr});
    ASSERT_EQ(found.size(), 3u); // the first of them is what the pilot must not miss least
    EXPECT_EQ(found.back().style, &airspaceStyle("RA"));
    EXPECT_EQ(found.back().last, 35u) << "cut where the view of airspaces ends";
    EXPECT_TRUE(collectSideAirspaces(eastward(8.0, 9.0, 2, 0.0), *store, {1e7, false, nullptr}).empty());
}

TEST_F(SideAirspaces, bandsLieBetweenTheirLimits) {
    Elements elements;
    elements.push_back(box(8.205, 8.395, "D", 1000, 2500));
    elements.push_back(box(8.505, 8.695, "W", 500, 1500));
    static_cast<AirspaceElement&>(*elements.back()).isBottomMsl = false;
    static_cast<AirspaceElement&>(*elements.back()).isTopMsl = false;
    elements.push_back(box(8.75, 8.8, "C", AirspaceElement::Unlimited, AirspaceElement::Unlimited));
    elements.push_back(box(8.85, 8.9, "A", 9500, 19500));
    install("V", "a", elements);
    const auto store = open();
    RouteProfile profile = eastward(8.0, 9.0, 101, 300.0);
    for (size_t i = 0; i < 101; ++i)
        profile.heights[i] = static_cast<float>(i) * 5.0f;
    fill(profile, *store);
    std::vector<SideAirspace> found = collectSideAirspaces(profile, *store, {1e7, false, nullptr});
    ASSERT_EQ(found.size(), 4u);
    const auto named = [&](const char* kind) {
        return *std::find_if(found.begin(), found.end(), [kind](const SideAirspace& each) {
            return each.style == &airspaceStyle(kind) ||
                   each.name.view().substr(0, 1) == std::wstring(1, static_cast<wchar_t>(kind[0]));
        });
    };
    const SideAxes axes{{0.0, 0.0, 1010.0, 500.0}, 101, 0.0, 101.0, 100.0, 0.0, 1000.0}; // 10 pixels a point
    ShapePath upper, lower;
    ASSERT_TRUE(outlineSideAirspace(named("D"), profile, axes, upper, lower));
    EXPECT_NEAR(upper.front().X, 200.0, 1e-6);
    EXPECT_NEAR(upper.back().X, 400.0, 1e-6);
    EXPECT_NEAR(upper.front().Y, 500.0 - 2500.0 * MetresPerFoot / 2.0, 1e-6);
    EXPECT_NEAR(lower.front().Y, 500.0 - 1000.0 * MetresPerFoot / 2.0, 1e-6);
    EXPECT_EQ(upper.size(), 2u);
    ASSERT_TRUE(outlineSideAirspace(named("W"), profile, axes, upper, lower));
    ASSERT_EQ(upper.size(), 21u);
    for (size_t i = 0; i < upper.size(); ++i) { // follows the ground
        const double ground = 5.0 * static_cast<double>(50 + i);
        EXPECT_NEAR(upper[i].Y, 500.0 - (ground + 1500.0 * MetresPerFoot) / 2.0, 1e-6);
        EXPECT_NEAR(lower[i].Y, 500.0 - (ground + 500.0 * MetresPerFoot) / 2.0, 1e-6);
    }
    ASSERT_TRUE(outlineSideAirspace(named("C"), profile, axes, upper, lower));
    EXPECT_LT(upper.front().Y, 0.0) << "no limit: beyond the picture";
    EXPECT_GT(lower.front().Y, 500.0);
    EXPECT_FALSE(outlineSideAirspace(named("A"), profile, axes, upper, lower)) << "above the picture";
    SideAxes ahead = axes;
    ahead.first = 30.0;
    ahead.shown = 10.0;
    ASSERT_TRUE(outlineSideAirspace(named("D"), profile, ahead, upper, lower));
    EXPECT_GE(upper.front().X, -102.0);
    EXPECT_FALSE(outlineSideAirspace(named("W"), profile, ahead, upper, lower));
}

TEST(SideStops, tellNamesAndAltitudes) {
    RouteProfile profile = eastward(8.0, 9.0, 101, 300.0);
    RouteProfile::Stop stop;
    stop.distanceMetres = 0.5 * profile.totalMetres;
    stop.altitudeMetres = 914.4;
    profile.stops.push_back(stop);
    stop.distanceMetres = profile.totalMetres;
    stop.isAltitudeSet = true;
    profile.stops.push_back(stop);
    const auto name = [](const ProcedureLocation&) { return ShortText(L"LUMEN"); };
    const std::vector<SideStop> stops = listSideStops(profile, false, name);
    EXPECT_EQ(stops[0].altitude.view(), L"Auto");
    EXPECT_EQ(stops[1].altitude.view(), L"3000 ft");
    EXPECT_NEAR(stops[0].index, 50.0, 1e-9);
    EXPECT_NEAR(stops[1].index, 100.0, 1e-9);
    EXPECT_EQ(listSideStops(profile, true, name)[1].altitude.view(), L"914 m");
    const SideAxes axes{{0.0, 0.0, 1010.0, 500.0}, 101, 0.0, 101.0, 100.0, 0.0, 1000.0};
    const ShapePoint place = axes.toScreen(50.0, 914.4), size(120.0, 48.0);
    EXPECT_EQ(findSideStop(stops, axes, place + ShapePoint(59.0, -23.0), size), 0);
    EXPECT_EQ(findSideStop(stops, axes, place + ShapePoint(61.0, 0.0), size), -1);
    EXPECT_EQ(findSideStop(stops, axes, place + ShapePoint(0.0, 25.0), size), -1);
    EXPECT_EQ(findSideStop(stops, axes, {1001.0, 40.0}, size), 1);
    double metres = 0.0;
    profile.heights[20] = 120.0f;
    profile.known[60] = 0;
    EXPECT_TRUE(groundAt(profile, 19.5, metres));
    EXPECT_EQ(metres, 120.0);
    EXPECT_FALSE(groundAt(profile, 59.5, metres));
    EXPECT_FALSE(groundAt(profile, NAN, metres));
    EXPECT_TRUE(groundAt(profile, 1e9, metres));
}

/// Every letter is as wide as its height times 0.6.
class FixedMeasure : public IWordMeasure {
public:
    double measure(const ShortText& text, double height) override {
        return 0.6 * height * static_cast<double>(text.view().size());
    }
};

/// A side view with random contents, and what it draws.
class SidePicture : public testing::Test {
protected:
    void arrange(unsigned seed, double width, double height, int stopCount, int airspaceCount) {
        std::mt19937 random(seed);
        std::uniform_real_distribution<double> unit(0.0, 1.0);
        const auto below = [&](double limit) { return unit(random) * limit; };
        profile_ = std::make_unique<RouteProfile>(eastward(8.0, 9.5, 400, 0.0));
        double altitude = below(1500.0);
        for (size_t i = 0; i < 400; ++i) {
            altitude = std::max(0.0, altitude + below(20.0) - 10.0);
            profile_->pathAltitudes[i] = static_cast<float>(altitude);
            profile_->heights[i] = static_cast<float>(250.0 + 250.0 * std::sin(static_cast<double>(i) * 0.05 + seed));
            profile_->known[i] = i < 300 || seed % 3 != 0;
        }
        stops_.clear();
        for (int i = 0; i < stopCount; ++i) {
            SideStop stop;
            stop.index = below(399.0);
            stop.altitudeMetres = static_cast<double>(profile_->pathAltitudes[static_cast<size_t>(stop.index)]);
            stop.name = ShortText(L"STOP").append(std::to_string(i));
            stop.altitude = i % 2 ? L"3000 ft" : L"Auto";
            stops_.push_back(stop);
        }
        airspaces_.clear();
        for (int i = 0; i < airspaceCount; ++i) {
            SideAirspace airspace;
            airspace.first = static_cast<size_t>(below(380.0));
            airspace.last = std::min<size_t>(399, airspace.first + static_cast<size_t>(below(150.0)));
            airspace.floor = {i % 4 != 0, i % 5 == 0, below(1500.0)};
            airspace.ceiling = {i % 7 != 0, false, below(3000.0)};
            airspace.style = &airspaceStyle(i % 2 ? "D" : "RA");
            airspace.name = ShortText(L"D  Somewhere Approach Zone ").append(std::to_string(i));
            airspace.limits = L"1500 - 4500";
            airspace.isCrossed = i % 3 == 0;
            airspaces_.push_back(airspace);
        }
        scene_ = SideScene();
        scene_.axes = {
            {37.0, 21.0, 37.0 + width, 21.0 + height}, 400, 0.0, 400.0, profile_->totalMetres / 399.0, 0.0, 2000.0};
        scene_.profile = profile_.get();
        scene_.stops = &stops_;
        scene_.airspaces = &airspaces_;
        scene_.selected = stopCount > 0 && seed % 2 ? 0 : -1;
        scene_.textHeight = 12.0;
        scene_.scaleWidth = 60.0;
        scene_.scaleHeight = 23.0;
        scene_.metric = seed % 2;
        scene_.isAhead = seed % 5 == 0;
        if (height > 300.0)
            scene_.buttons = {width - 400.0, 25.0, width + 30.0, 70.0};
        if (seed % 4 != 0)
            scene_.place = RoutePlace{below(399.0), below(4000.0)};
        if (seed % 7 != 0)
            scene_.readings.altitudeMetres = below(2600.0);
        scene_.readings.position = ChartPosition(8.0, 42.0);
        scene_.readings.groundMetresPerSecond = 60.0;
        scene_.readings.climbMetresPerSecond = below(8.0) - 4.0;
        blockForFlight(scene_, measure_);
    }
    void draw() {
        still_.clear();
        moving_.clear();
        addSideGround(stillTools_, scene_);
        addSideCourse(stillTools_, scene_);
        addAltitudeScale(stillTools_, scene_);
        labels_.add(stillTools_, scene_);
        addDistanceScale(movingTools_, scene_);
        addSideFlight(movingTools_, scene_);
    }
    /// Around each line of text.
    std::vector<std::pair<std::wstring, ShapeRect>> words() {
        std::vector<std::pair<std::wstring, ShapeRect>> found;
        for (const BarCanvas* canvas : {&still_, &moving_})
            for (const auto& layer : canvas->layers)
                for (const BarText& text : layer.texts) {
                    const double width = measure_.measure(text.text, text.height);
                    const double left = text.place.X - width * (text.align == BarText::Left     ? 0.0
                                                                : text.align == BarText::Centre ? 0.5
                                                                                                : 1.0);
                    found.push_back(
                        {std::wstring(text.text.view()),
                         {left, text.place.Y - 0.6 * text.height, left + width, text.place.Y + 0.6 * text.height}});
                }
        return found;
    }

    std::unique_ptr<RouteProfile> profile_;
    std::vector<SideStop> stops_;
    std::vector<SideAirspace> airspaces_;
    SideScene scene_;
    FixedMeasure measure_;
    BarCanvas still_, moving_;
    SideTools stillTools_{still_, measure_}, movingTools_{moving_, measure_};
    SideLabels labels_;
};

TEST_F(SidePicture, noWordsLieOverOthersOrOutside) {
    size_t shown = 0;
    for (unsigned seed = 1; seed <= 300; ++seed) {
        arrange(seed, 300.0 + (seed * 37) % 1000, 120.0 + (seed * 53) % 600, static_cast<int>(seed % 9),
                static_cast<int>((seed * 7) % 25));
        draw();
        const auto all = words();
        shown += all.size();
        for (size_t i = 0; i < all.size(); ++i) {
            const ShapeRect& place = all[i].second;
            const ShapeRect& panel = scene_.axes.panel;
            EXPECT_GE(place.UpperLeftCorner.X, panel.UpperLeftCorner.X) << seed;
            EXPECT_GE(place.UpperLeftCorner.Y, panel.UpperLeftCorner.Y) << seed;
            EXPECT_LE(place.LowerRightCorner.X, panel.LowerRightCorner.X) << seed;
            EXPECT_LE(place.LowerRightCorner.Y, panel.LowerRightCorner.Y) << seed;
            for (size_t j = 0; j < i; ++j)
                EXPECT_FALSE(all[j].first != L"NO TERRAIN" && doMeet(place, all[j].second))
                    << seed << " " << std::string(all[i].first.begin(), all[i].first.end()) << " over "
                    << std::string(all[j].first.begin(), all[j].first.end());
        }
    }
    EXPECT_GT(shown, 300u * 8u);
}

TEST_F(SidePicture, courseWarnsOfTheGround) {
    arrange(2, 800.0, 400.0, 0, 0);
    const auto colors = [this] {
        std::vector<uint32_t> found;
        for (const ShapeMesh::Vertex& vertex : still_.layers[BarCanvas::Scale].shapes.vertices)
            for (const uint32_t wanted : {SideColor::inGround, SideColor::low, SideColor::course})
                if (vertex.argb == wanted && std::find(found.begin(), found.end(), wanted) == found.end())
                    found.push_back(wanted);
        return found;
    };
    profile_->heights.assign(400, 500.0f);
    for (const auto& [altitude, color] : {std::pair<float, uint32_t>(700.0f, SideColor::course),
                                          {600.0f, SideColor::low},
                                          {490.0f, SideColor::low}, // as exact as heights are
                                          {470.0f, SideColor::inGround}}) {
        profile_->pathAltitudes.assign(400, altitude);
        draw();
        EXPECT_EQ(colors(), std::vector<uint32_t>{color}) << altitude;
    }
    profile_->known.assign(400, 0);
    draw();
    EXPECT_EQ(colors(), std::vector<uint32_t>{SideColor::course}) << "nobody knows the ground";
}

TEST_F(SidePicture, allocatesNothingAgain) {
    arrange(3, 1000.0, 500.0, 6, 15);
    draw();
    const AllocationCounter counter;
    draw();
    EXPECT_EQ(counter.count(), 0u);
}

TEST_F(SidePicture, aircraftStaysInThePicture) {
    arrange(3, 1000.0, 500.0, 2, 0);
    for (const double index : {0.0, 200.0, 399.0})
        for (const double altitude : {-300.0, 0.0, 1000.0, 9000.0}) {
            scene_.place = RoutePlace{index, 0.0};
            scene_.readings.altitudeMetres = altitude;
            const std::optional<ShapePoint> place = placeSideAircraft(scene_);
            ASSERT_TRUE(place);
            EXPECT_TRUE(scene_.axes.panel.isPointInside(*place));
            if (index == 200.0 && altitude == 1000.0) {
                EXPECT_NEAR(place->X, scene_.axes.xOf(200.0), 1e-9);
                EXPECT_NEAR(place->Y, scene_.axes.yOf(1000.0), 1e-9);
            }
        }
    scene_.readings.altitudeMetres.reset();
    EXPECT_FALSE(placeSideAircraft(scene_));
}

} // namespace
} // namespace skyvane

#include "chart/elements/AirportElement.h"
#include "chart/geodesy/GreatCircle.h"
#include "chart/store/ChartStore.h"
#include "demo/region/Contour.h"
#include "demo/region/Masts.h"
#include "demo/region/RegionFiles.h"
#include "demo/region/Routes.h"
#include "demo/region/TerrainFiles.h"
#include "sensors/TemporaryFolder.h"
#include "terrain/files/TerrainIndexFile.h"
#include "terrain/files/TerrainTile.h"
#include "terrain/tree/TerrainStore.h"
#include "tools/chartmaker/ChartMakerRun.h"

#include <algorithm>
#include <memory>

namespace skyvane::demo {
namespace {

constexpr uint64_t seed = 1;

/// Made once: it takes a second, and minutes under sanitizers.
struct DemoRegion : testing::Test {
    static void SetUpTestSuite() {
        landscape = std::make_unique<Landscape>(seed);
        sites = std::make_unique<Sites>(settle(*landscape));
    }
    static void TearDownTestSuite() {
        sites.reset();
        landscape.reset();
    }
    static std::unique_ptr<Landscape> landscape;
    static std::unique_ptr<Sites> sites;
};

std::unique_ptr<Landscape> DemoRegion::landscape;
std::unique_ptr<Sites> DemoRegion::sites;

TEST_F(DemoRegion, RiversNeverFlowUphill) {
    const auto& rivers = landscape->getWaterways().getRivers();
    EXPECT_GT(rivers.size(), 10u);
    for (const River& river : rivers) {
        double before = 1e9;
        for (const RiverPoint& point : river.points) {
            const double metres = landscape->height(point.spot);
            EXPECT_LE(metres, before + 0.05) << point.spot.x << " " << point.spot.y;
            before = metres;
        }
    }
}

TEST_F(DemoRegion, TheLakeIsLevelAndTheMountainsAreHigh) {
    const Waterways& water = landscape->getWaterways();
    double highest = 0.0;
    const HeightGrid& grid = landscape->getGrid();
    for (int node = 0; node < grid.size(); ++node) {
        const Spot spot = grid.spot(node);
        highest = std::max(highest, landscape->height(spot));
        EXPECT_EQ(landscape->height(spot) > 0.0, landscape->coast(spot) > 0.0) << spot.x << " " << spot.y;
        if (water.lakeDepth(spot) > 0.0) {
            EXPECT_NEAR(landscape->height(spot), water.getLakeLevel(), 0.5);
        }
    }
    EXPECT_GT(highest, 2300.0);
    EXPECT_LT(highest, 2750.0);
}

TEST_F(DemoRegion, RunwaysLieOnTheGroundAndHaveTheirLength) {
    for (const Airport& airport : sites->airports) {
        if (!airport.hasRunway())
            continue;
        for (const double t : {0.0, 0.3, 0.7, 1.0})
            EXPECT_NEAR(landscape->height(blend(airport.from, airport.to, t)),
                        airport.fromMetres + (airport.toMetres - airport.fromMetres) * t, 0.5)
                << airport.plan->ident;
        const double metres = calcDistance2(RegionPlane::toPosition(airport.from), RegionPlane::toPosition(airport.to));
        EXPECT_NEAR(metres / MetresPerFoot, airport.plan->lengthFeet, 3.0) << airport.plan->ident;
        EXPECT_GT(landscape->coast(airport.from), 100.0) << airport.plan->ident;
    }
}

TEST_F(DemoRegion, RoadsStayOnLandAndCrossTheRange) {
    double highest = 0.0;
    for (const Route& road : buildRoads(*landscape, *sites))
        for (const Spot& spot : road.line) {
            EXPECT_GT(landscape->coast(spot), 0.0) << spot.x << " " << spot.y;
            highest = std::max(highest, landscape->height(spot));
        }
    EXPECT_GT(highest, 600.0) << "no road crosses a pass";
    for (const Mast& mast : raiseMasts(*landscape, *sites))
        EXPECT_EQ(mast.footMetres, landscape->height(mast.spot)) << mast.name;
}

TEST_F(DemoRegion, TheTileHasTheRunwaysHeightsAndTheSea) {
    const std::vector<int16_t> heights = sampleTile(*landscape);
    const auto at = [&](Spot spot) {
        const auto column = static_cast<size_t>(std::lround(spot.x / RegionPlane::Width * TileSteps));
        const auto row = static_cast<size_t>(std::lround((1.0 - spot.y / RegionPlane::Height) * TileSteps));
        return heights[row * TileSide + column];
    };
    for (const Airport& airport : sites->airports) {
        if (airport.hasRunway()) {
            EXPECT_NEAR(at(airport.from), airport.fromMetres, 4.0) << airport.plan->ident; // in 50 m of it
        }
    }
    EXPECT_EQ(heights.front(), 0);
    EXPECT_GT(*std::max_element(heights.begin(), heights.end()), 2300);
    TemporaryFolder folder;
    ASSERT_TRUE(writeTerrain(*landscape, folder.path() + "/"));
    const std::list<int> ids = parseTIFile(folder.path("Skyvane_Islands.ti"), nullptr, nullptr);
    ASSERT_EQ(ids.size(), 9u) << "the islands and the sea around them";
    TerrainStore tree(folder.path() + "/", 1);
    const Spot top{RegionPlane::Width / 2, RegionPlane::Height / 2};
    EXPECT_NEAR(tree.getRoot()->getHeight(RegionPlane::toPosition(top), 1e9, true, false),
                std::max(landscape->height(top), 0.0), 25.0);
}

TEST_F(DemoRegion, TheSameSeedGivesTheSameBytesAndAllOfThemCompile) {
    const auto files = makeRegionFiles(*landscape, *sites);
    Landscape twin(seed);
    const Sites twinSites = settle(twin);
    EXPECT_EQ(files, makeRegionFiles(twin, twinSites));
    TemporaryFolder folder;
    for (const auto& [name, text] : files) {
        folder.write(name, text);
        const bool hasNames = name != "runways.csv" && name != "airport-frequencies.csv";
        EXPECT_EQ(text.find("fictional") != std::string::npos, hasNames) << name;
    }
    const ChartMakerRun run({"compile", "--out", folder.path("out"), "--vendor", "Demo", "--area", "Region",
                             "--airports", folder.path(), "--fixes", folder.path("earth_fix.dat"), "--airways",
                             folder.path("earth_awy.dat"), "--airspaces", folder.path("airspaces.txt"), "--obstacles",
                             folder.path("obstacles.csv"), "--ground", folder.path("ground.geojson")});
    EXPECT_EQ(run.status, 0) << run.error;
    EXPECT_NE(run.out.find("\n0 refused, 0 with a warning\n"), std::string::npos) << run.out;
    const ChartMakerRun dump({"dump", folder.path("out/Demo_Region.sci")});
    EXPECT_EQ(dump.status, 0) << dump.error;
    for (const char* wanted : {"10 Airport", "10 Airspace", "20 Airway", "22 Waypoint", "3 VOR", "2 NDB"})
        EXPECT_NE(dump.out.find(std::string("\n") + wanted + "\n"), std::string::npos) << wanted << dump.out;
    const ElementFactories factories = makeElementFactories();
    ChartStore charts(factories, {folder.path("out/"), folder.path("none/")}, 10);
    charts.loadSets("Demo");
    charts.buildIndex(nullptr, nullptr);
    const auto found = charts.getMatchingChartElements("XSKV", 1);
    ASSERT_EQ(found.size(), 1u);
    const auto* main = dynamic_cast<const AirportElement*>(charts.getChartElement(found.front()));
    ASSERT_TRUE(main);
    size_t approaches = 0;
    for (const Runway& runway : main->runways)
        for (const RunwayEnd& end : runway.ends)
            approaches += end.approaches.size();
    EXPECT_EQ(approaches, 1u) << "the landing system of the main runway";
}

TEST(DemoContour, RingsKeepWhatIsAboveOnTheirLeft) {
    const auto ring = [](Spot spot) { return 100.0 - std::fabs(300.0 - length(spot)); }; // a ring of 200 to 400 metres
    auto contours = traceContours({{-500.0, -500.0}, {500.0, 500.0}, 10.0}, ring);
    ASSERT_EQ(contours.size(), 2u);
    std::sort(contours.begin(), contours.end(), [](const auto& a, const auto& b) { return a.size() < b.size(); });
    EXPECT_NEAR(signedArea(contours[0]), -3.14159 * 200.0 * 200.0, 500.0);
    EXPECT_NEAR(signedArea(contours[1]), 3.14159 * 400.0 * 400.0, 500.0);
}

} // namespace
} // namespace skyvane::demo

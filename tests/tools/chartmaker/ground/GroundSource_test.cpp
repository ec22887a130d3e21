#include "sensors/TemporaryFolder.h"
#include "support/SourceFolder.h"
#include "tools/chartmaker/ChartMakerRun.h"

#include <cstdlib>

namespace skyvane {
namespace {

const std::string data = "tests/tools/chartmaker/ground/data/";

struct GroundSource : testing::Test {
    TemporaryFolder folder;

    ChartMakerRun compile(const std::string& file, const std::string& region = "world") {
        return ChartMakerRun({"compile", "--out", folder.path(), "--vendor", "Test", "--area", "Small", "--region",
                              region, "--ground", file});
    }
    /// The elements of the set that was compiled, a line each, without their numbers.
    std::string dump() {
        std::string text = ChartMakerRun({"dump", folder.path("Test_Small.sci")}).out, lines;
        text.erase(0, text.find("\n\n") + 2);
        text.erase(text.find("\n\n") + 1);
        for (size_t at = 0; at < text.size();) {
            const size_t end = text.find('\n', at);
            lines += text.substr(at + 9, end - at - 8);
            at = end + 1;
        }
        return lines;
    }
    std::string element(int index) {
        return ChartMakerRun({"dump", folder.path("Test_Small.sci"), "--element", std::to_string(index)}).out;
    }
};

TEST_F(GroundSource, TakesOpenStreetMap) {
    const ChartMakerRun run = compile(sourceFolder() + data + "small.osm");
    EXPECT_EQ(run.status, 0) << run.error;
    EXPECT_EQ(dump(), "GroundGeometry   42.600000    1.200000  Country Border\n"
                      "GroundGeometry   42.450000    1.000000  Lake: Pond\n"
                      "GroundGeometry   42.500000    1.000000  Highway: N 7\n"
                      "GroundGeometry   42.500000    1.200000  Railway\n"
                      "GroundGeometry   42.500000    1.100000  Country Border/River\n");
    EXPECT_NE(element(2).find("posCount = 2"), std::string::npos) << "two ways that go straight on are one line";
    EXPECT_NE(element(4).find("additionalData = 80"), std::string::npos) << element(4);
}

TEST_F(GroundSource, TakesGeoJsonCutAtTheRegion) {
    const ChartMakerRun run = compile(sourceFolder() + data + "small.geojson", "0.9,41,1.15,43");
    EXPECT_EQ(run.status, 0) << run.error;
    EXPECT_EQ(dump(), "GroundGeometry   42.001000    1.000000  Apron\n"
                      "GroundGeometry   42.100000    1.100000  Town\n"
                      "GroundGeometry   42.000000    0.900000  Coastline\n"
                      "GroundGeometry   42.000000    1.000000  Taxiway (lighted): A\n");
    EXPECT_NE(run.error.find("refused"), std::string::npos);
    EXPECT_NE(run.error.find("nowhere on the earth"), std::string::npos) << "latitude 95";
}

TEST_F(GroundSource, RefusesWhatItCannotRead) {
    folder.write("noise.geojson", std::string(3000, '\xc7'));
    folder.write("cut.geojson", R"({"type":"FeatureCollection","features":[{"type":"Feature","prop)");
    folder.write("cut.osm.pbf", std::string("\x00\x00\x00\x0d\x0a\x09OSMHeader\x18\x7c", 17));
    folder.write("virtual.vrt", "<OGRVRTDataSource></OGRVRTDataSource>");
    for (const char* name : {"noise.geojson", "cut.geojson", "cut.osm.pbf", "virtual.vrt", "absent.osm"}) {
        const ChartMakerRun run = compile(folder.path(name));
        EXPECT_EQ(run.status, 1) << name;
        EXPECT_NE(run.error.find("refused"), std::string::npos) << name;
    }
}

TEST_F(GroundSource, TakesAWholeExtract) {
    const char* real = std::getenv("SKYVANE_DATA");
    if (!real)
        GTEST_SKIP() << "no real extract of a country: SKYVANE_DATA isn't set";
    const ChartMakerRun run = compile(std::string(real) + "/osm/andorra.osm.pbf");
    EXPECT_EQ(run.status, 0) << run.error;
    const std::string elements = dump();
    for (const char* wanted : {"Highway: CG", "River: Valira",
                               "Country Border: Espa\xc3\xb1"
                               "a",
                               "Lake: Lac d'Engolasters"})
        EXPECT_NE(elements.find(wanted), std::string::npos) << wanted;
}

} // namespace
} // namespace skyvane

#include "chartmaker/ground/PbfBlocks.h"
#include "sensors/TemporaryFolder.h"
#include "support/SourceFolder.h"
#include "tools/chartmaker/ChartMakerRun.h"

#include <cstdlib>
#include <filesystem>
#include <gdal_priv.h>
#include <gdal_utils.h>

namespace skyvane {
namespace {

const std::string data = "tests/tools/chartmaker/ground/data/";

struct GroundSource : testing::Test {
    TemporaryFolder folder;

    ChartMakerRun compile(const std::string& file, const std::string& region = "world") {
        return compile(std::vector<std::string>{file}, region);
    }
    ChartMakerRun compile(const std::vector<std::string>& files, const std::string& region) {
        Arguments arguments{"compile", "--out", folder.path(), "--vendor", "Test",
                            "--area",  "Small", "--region",    region,     "--ground"};
        arguments.insert(arguments.end(), files.begin(), files.end());
        return ChartMakerRun(arguments);
    }
    /// Copies features of a file into another format and coordinate system.
    static void copyAs(const std::string& from, const std::string& to, std::vector<std::string> options) {
        GDALAllRegister();
        std::vector<char*> words;
        for (std::string& option : options)
            words.push_back(option.data());
        words.push_back(nullptr);
        GDALVectorTranslateOptions* parsed = GDALVectorTranslateOptionsNew(words.data(), nullptr);
        GDALDatasetH source = GDALOpenEx(from.c_str(), GDAL_OF_VECTOR, nullptr, nullptr, nullptr);
        GDALDatasetH copy = GDALVectorTranslate(to.c_str(), nullptr, 1, &source, parsed, nullptr);
        EXPECT_TRUE(copy) << to;
        GDALVectorTranslateOptionsFree(parsed);
        GDALClose(copy);
        GDALClose(source);
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

TEST_F(GroundSource, TellsOfRelationsThatReachOutOfTheExtract) {
    folder.write("cut.osm", R"(<osm version="0.6">
<node id="1" lat="42.1" lon="1.1"/><node id="2" lat="42.1" lon="1.2"/><node id="3" lat="42.2" lon="1.2"/>
<way id="10"><nd ref="1"/><nd ref="2"/></way>
<way id="11"><nd ref="1"/><nd ref="2"/><nd ref="3"/><tag k="highway" v="primary"/></way>
<relation id="20"><member type="way" ref="10" role="outer"/><member type="way" ref="99" role="outer"/>
<tag k="type" v="multipolygon"/><tag k="natural" v="water"/></relation>
</osm>)");
    const ChartMakerRun run = compile(folder.path("cut.osm"));
    EXPECT_EQ(run.status, 0);
    EXPECT_NE(run.error.find("1 relations reach out of the file"), std::string::npos) << run.error;
    EXPECT_EQ(dump(), "GroundGeometry   42.100000    1.100000  Highway\n");
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

TEST_F(GroundSource, TakesEachFormatInAnyCoordinateSystem) {
    const std::string original = folder.path("original.geojson");
    folder.write("original.geojson", R"({"type":"FeatureCollection","features":[
{"type":"Feature","properties":{"fclass":"reservoir","name":"Embassament"},"geometry":{"type":"Polygon","coordinates":
[[[1.3,42.3],[1.4,42.3],[1.4,42.4],[1.3,42.4],[1.3,42.3]]]}},
{"type":"Feature","properties":{"fclass":"motorway","ref":"C 16"},"geometry":{"type":"LineString","coordinates":
[[1.5,42.1],[1.6,42.3],[1.4,42.5]]}},
{"type":"Feature","properties":{"fclass":"rail"},"geometry":{"type":"MultiLineString","coordinates":
[[[1.1,42.1],[1.2,42.2]],[[1.8,42.1],[1.7,42.2]]]}}]})");
    ASSERT_EQ(compile(original).status, 0);
    const std::string expected = dump();
    EXPECT_NE(expected.find("Lake: Embassament"), std::string::npos) << expected;
    EXPECT_NE(expected.find("Highway: C 16"), std::string::npos) << expected;
    EXPECT_NE(expected.find("Railway"), std::string::npos) << expected;

    const std::string areas = folder.path("areas.shp"), lines = folder.path("lines.shp");
    copyAs(original, areas, {"-t_srs", "EPSG:25831", "-where", "OGR_GEOMETRY='POLYGON'"});
    copyAs(original, lines, {"-t_srs", "EPSG:25831", "-where", "OGR_GEOMETRY<>'POLYGON'", "-nlt", "MULTILINESTRING"});
    EXPECT_EQ(compile({areas, lines}, "world").error, "");
    EXPECT_EQ(dump(), expected) << "shapefiles in metres of UTM";
    for (const char* system : {"EPSG:3857", "EPSG:4326", "EPSG:27572"}) {
        const std::string package = folder.path(std::string("ground") + (system + 5) + ".gpkg");
        copyAs(original, package, {"-f", "GPKG", "-t_srs", system});
        EXPECT_EQ(compile(package).error, "") << system;
        EXPECT_EQ(dump(), expected) << "a GeoPackage in " << system;
    }
    // Without its .prj nobody knows what the metres mean.
    folder.remove("lines.prj");
    const ChartMakerRun unknown = compile(lines);
    EXPECT_NE(unknown.error.find("nowhere on the earth"), std::string::npos) << unknown.error;
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

TEST_F(GroundSource, KnowsAnExtractThatWasCut) {
    const std::string block("\0\0\0\7\n\3OSM\x18\5data.", 16); // a head of seven bytes that tells of five
    const auto isWhole = [this](const std::string& bytes) {
        folder.write("extract.osm.pbf", bytes);
        return isWholePbf(folder.path("extract.osm.pbf"));
    };
    EXPECT_TRUE(isWhole(block + block));
    for (size_t length = 0; length < block.size(); ++length)
        EXPECT_EQ(isWhole(block + block.substr(0, length)), length == 0) << length;
    EXPECT_FALSE(isWhole(""));
    EXPECT_FALSE(isWhole("<html>not found</html>"));
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

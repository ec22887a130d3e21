#include "chart/elements/AirportElement.h"
#include "chart/elements/AirspaceElement.h"
#include "chart/elements/ElementFactory.h"
#include "chart/elements/VORElement.h"
#include "chart/elements/WaypointElement.h"
#include "chart/geodesy/GreatCircle.h"
#include "chart/names/IndexCase.h"
#include "chart/store/ChartStore.h"
#include "chartmaker/command/ChartMaker.h"
#include "chartmaker/compile/ChartCompiler.h"
#include "chartmaker/csv/CsvReader.h"
#include "chartmaker/text/SourceText.h"
#include "core/text/Numbers.h"
#include "tools/chartmaker/TestSink.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <set>
#include <sstream>
#include <unordered_map>
#include <unordered_set>

namespace skyvane {
namespace {

using Values = std::vector<std::string>;

std::string contentOf(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string((std::istreambuf_iterator<char>(in)), {});
}

/// A folder ChartData that the command line fills, and the store that reads it.
class Compile : public testing::Test {
protected:
    Compile() {
        char name[] = "/tmp/chartmakerXXXXXX";
        folder_ = mkdtemp(name);
    }
    ~Compile() override { std::filesystem::remove_all(folder_); }

    int run(Arguments arguments) {
        for (const char* argument : {"--vendor", "Own", "--area", "Isles / 1", "--report"})
            arguments.push_back(argument);
        arguments.push_back(folder_ + "/report");
        arguments.insert(arguments.begin(), {"compile", "--out", folder_});
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        const int status = runChartMaker(arguments);
        out_ = testing::internal::GetCapturedStdout();
        errors_ = testing::internal::GetCapturedStderr();
        return status;
    }
    int runOwnFiles(const std::string& region) {
        return run({"--airspaces", chartmakerData("airspaces.txt"), "--airports", chartmakerData("tables"), "--fixes",
                    chartmakerData("fix600.dat"), chartmakerData("fix1101.dat"), "--airways",
                    chartmakerData("awy640.dat"), chartmakerData("awy1100.dat"), "--obstacles",
                    chartmakerData("obstacles.csv"), "--region", region});
    }
    void load() {
        store_ = std::make_unique<ChartStore>(factories_, ChartStore::Folders{folder_ + "/", "/nowhere/"}, 100000);
        store_->loadSets("Own");
        store_->buildIndex(nullptr, nullptr);
    }
    std::vector<std::string> find(const std::string& name) {
        std::vector<std::string> labels;
        for (const int id : store_->getMatchingChartElements(name, 100))
            labels.push_back(store_->getChartElement(id)->getIndicatedLabel(true, false));
        std::sort(labels.begin(), labels.end());
        return labels;
    }

    std::string folder_, out_, errors_;
    const ElementFactories factories_ = makeElementFactories();
    std::unique_ptr<ChartStore> store_;
};

TEST_F(Compile, makesASetThatTheStoreLoads) {
    ASSERT_EQ(runOwnFiles("world"), 0) << errors_;
    load();
    ASSERT_EQ(store_->getSets().size(), 1u);
    EXPECT_EQ(store_->getSets()[0]->getAreaName(), "Isles / 1");
    EXPECT_EQ(store_->getStaticElementCount(), 23);
    const std::vector<std::string> port{"XSPM - Port Meridian Airport - Airport"};
    for (const char* name : {"XSPM", "PORT MERIDIAN AIRPORT"})
        EXPECT_EQ(find(name), port) << name;
    EXPECT_EQ(find("NORTH"), std::vector<std::string>{"GF1 - Gannet \"Old\" Field, North - Airport"});
    EXPECT_EQ(find("PUFIN").size(), 2u);
    EXPECT_TRUE(find("MM045").empty()); // not public
    const std::list<int> near = store_->findChartElementsInVicinity({-28.5, 42.0}, 2.0, true);
    EXPECT_EQ(std::set<int>(near.begin(), near.end()).size(), 2u);
}

TEST_F(Compile, mergesRecordsOfOneObject) {
    ASSERT_EQ(runOwnFiles("world"), 0) << errors_;
    load();
    const auto ids = store_->getMatchingChartElements("MER", 1);
    ASSERT_EQ(ids.size(), 1u); // the TACAN gave way to the VOR
    const auto& vor = dynamic_cast<const VORElement&>(*store_->getChartElement(ids.front()));
    EXPECT_EQ(vor.getIndicatedLabel(true, false), "MER - Meridian - VORDME");
    EXPECT_EQ(vor.frequency, (Frequency{113, 900}));
    EXPECT_EQ(vor.remarks, "TACAN channel 084X");
    EXPECT_TRUE(vor.use.byAirways); // at the end of an airway
    const auto albat = store_->getMatchingChartElements("ALBAT", 1);
    ASSERT_EQ(albat.size(), 1u);
    EXPECT_EQ(dynamic_cast<const WaypointElement&>(*store_->getChartElement(albat.front())).use.bits(), 6);
    const std::string report = contentOf(folder_ + "/report");
    EXPECT_NE(report.find("airports.csv:5: merged: XSPM - Port Meridian Airport - Airport into "), std::string::npos);
    EXPECT_NE(report.find("obstacles.csv:5: refused: no altitude"), std::string::npos);
    EXPECT_NE(out_.find("Obstruction              2         0         1         0\n"), std::string::npos) << out_;
}

TEST_F(Compile, takesARegionAlone) {
    ASSERT_EQ(runOwnFiles("-28.45,42.15,-28.0,42.3"), 0) << errors_;
    load();
    EXPECT_TRUE(find("XSPM").empty());
    EXPECT_EQ(contentOf(folder_ + "/report").find("1187"), std::string::npos); // a frequency of XSPM
    EXPECT_EQ(find("GF1").size(), 1u);
    ASSERT_EQ(runOwnFiles("XT"), 0) << errors_;
    load();
    EXPECT_EQ(find("XTFA").size(), 1u);
    EXPECT_EQ(find("PUFIN").size(), 1u); // the one near the country's airport
    EXPECT_TRUE(find("XSPM").empty());
}

TEST_F(Compile, isTheSameEachTime) {
    ASSERT_EQ(runOwnFiles("world"), 0);
    std::vector<std::string> first;
    for (const char* name : {"Elements.dat", "ElementOffsets.dat", "Names.dat", "AreaLeafes.dat"})
        first.push_back(contentOf(folder_ + "/Own_Isles___1/" + name));
    ASSERT_EQ(runOwnFiles("world"), 0);
    for (const char* name : {"AreaLeafes.dat", "Names.dat", "ElementOffsets.dat", "Elements.dat"}) {
        EXPECT_FALSE(first.back().empty());
        EXPECT_EQ(contentOf(folder_ + "/Own_Isles___1/" + name), first.back()) << name;
        first.pop_back();
    }
}

TEST_F(Compile, saysWhatIsWrongOnTheCommandLine) {
    EXPECT_EQ(run({}), 2);
    EXPECT_NE(errors_.find("no sources are named"), std::string::npos);
    EXPECT_EQ(run({"--airport", "x"}), 2);
    EXPECT_EQ(run({"--region", "1,2,3"}), 2);
    EXPECT_EQ(run({"--fixes"}), 2);
    EXPECT_EQ(run({"--airspaces", "/nowhere"}), 1);
    EXPECT_NE(errors_.find("/nowhere: refused: can't be opened"), std::string::npos);
    EXPECT_EQ(runOwnFiles("ZZ"), 1);
    EXPECT_NE(errors_.find("nothing to write"), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(folder_ + "/Own_Isles___1.sci"));
    testing::internal::CaptureStdout();
    EXPECT_EQ(runChartMaker({"compile", "--help"}), 0);
    EXPECT_NE(testing::internal::GetCapturedStdout().find("--airspaces"), std::string::npos);
}

TEST(ChartCompiler, anAirportWithoutIdentGivesWayToOneThatHasIt) {
    std::ostringstream console;
    CompileReport report(console, nullptr);
    ChartCompiler compiler(Region(), report);
    const auto add = [&](const std::string& ident, const std::string& name, double longitude, long line) {
        auto airport = std::make_unique<AirportElement>();
        airport->ident = ident;
        airport->name = name;
        airport->position = ChartPosition(longitude, 60.0);
        compiler.add(std::move(airport), {"file", line});
    };
    add("", "Nameless strip", 179.999, 1);
    add("XSAA", "Airport", -179.99, 2); // 600 m away, across the antimeridian
    add("XSAA", "Airport", 179.98, 3);
    add("XSBB", "Other", 179.99, 4);
    add("", "Nameless strip", 179.9995, 5);
    ASSERT_EQ(compiler.getElementCount(), 2u);
    EXPECT_EQ(dynamic_cast<const AirportElement&>(compiler.getElement(0)).ident, "XSAA");
    EXPECT_EQ(report.getMerged(IChartElement::AIRPORT), 3);
}

TEST(ChartRegion, knowsWhatTouchesIt) {
    std::string error;
    const auto box = Region::parse("170,-50,-170,-40", error); // across the antimeridian
    ASSERT_TRUE(box);
    EXPECT_TRUE(box->contains({180.0, -45.0}));
    EXPECT_TRUE(box->contains({-175.0, -45.0}));
    EXPECT_TRUE(box->contains({190.0, -45.0}));
    EXPECT_FALSE(box->contains({160.0, -45.0}));
    EXPECT_FALSE(box->contains({180.0, -39.0}));
    AirspaceElement around;
    around.vertices = {{160.0, -60.0}, {160.0, -30.0}, {-160.0, -30.0}, {-160.0, -60.0}};
    EXPECT_TRUE(box->touches(around)); // though no vertex lies inside
    around.vertices = {{160.0, -60.0}, {160.0, -30.0}, {165.0, -30.0}};
    EXPECT_FALSE(box->touches(around));

    auto countries = Region::parse("XS,XT", error);
    ASSERT_TRUE(countries);
    EXPECT_FALSE(countries->contains({0.1, 0.1}));
    EXPECT_TRUE(countries->takes("XS", {0.1, 0.1}));
    EXPECT_FALSE(countries->takes("XX", {50.0, 0.1}));
    EXPECT_TRUE(countries->contains({-0.4, 0.6}));
    EXPECT_FALSE(countries->contains({1.1, 0.1}));
    for (const char* text : {"", "xs", "XSS", "1,2,3", "1,2,3,4,5", "0,10,10,0", "0,0,nan,1", "5,0,5,1"})
        EXPECT_FALSE(Region::parse(text, error)) << text;
}

/// The words of a name: between blanks and punctuation, single letters at the end only.
Values wordsOf(const std::string& name) {
    Values words;
    for (size_t begin = 0; begin < name.size();) {
        const size_t end = std::min(name.find_first_of("\t #&'()*+,-./:;<=>[\\]_{|}~", begin), name.size());
        if (end - begin > 1 || (end == name.size() && end > begin))
            words.push_back(name.substr(begin, end - begin));
        begin = end + 1;
    }
    return words;
}

class CompiledWorld : public Compile {
protected:
    bool isCalled(int id, const std::string& name) { return idsCalled(name).count(id) > 0; }

    /// The airport of a row, found by its ident and known by place and name; one of another name only where there is
    /// none. -1 without any. An ident that the table made up has given way to one of the codes of the row.
    int airportOf(const Values& row) {
        const ChartPosition position(toDouble(row[Longitude]), toDouble(row[Latitude]));
        int other = -1;
        for (const size_t column : {Icao, Ident, Gps, Local})
            for (const int id : idsCalled(row[column])) {
                const auto* airport = dynamic_cast<const AirportElement*>(store_->getChartElement(id));
                if (!airport || calcDistance2(airport->position, position) >= 3000.0)
                    continue;
                if (airport->name == cleanText(row[Name]))
                    return id;
                other = id;
            }
        return other;
    }

    enum Column : size_t { Ident = 1, Name = 3, Latitude = 4, Longitude = 5, Icao = 12, Gps = 14, Local = 15 };

private:
    const std::unordered_set<int>& idsCalled(const std::string& name) {
        const auto [entry, isNew] = called_.try_emplace(upperCaseName(name));
        if (isNew) // a limit of 0 gives those called exactly so
            for (const int id : store_->getMatchingChartElements(entry->first, 0))
                entry->second.insert(id);
        return entry->second;
    }

    std::unordered_map<std::string, std::unordered_set<int>> called_;
};

/// Every airport of the world by its ident, its name and the words of its name.
TEST_F(CompiledWorld, makesTheWorldOfRealAirports) {
    const char* data = std::getenv("SKYVANE_DATA");
    if (!data)
        GTEST_SKIP() << "no real airports: SKYVANE_DATA isn't set";
    const std::string airports = data + std::string("/airports");
    ASSERT_EQ(run({"--airports", airports}), 0) << errors_;
    load();
    EXPECT_GT(store_->getStaticElementCount(), 96000);
    LineReader lines(airports + "/airports.csv.gz");
    CsvReader csv(lines);
    csv.next();
    long seen = 0, renamed = 0;
    while (csv.next()) {
        const Values& row = csv.getValues();
        const std::string name = cleanText(row[Name]);
        const int id = airportOf(row);
        ASSERT_GE(id, 0) << row[Ident] << " " << name;
        const bool isMerged = dynamic_cast<const AirportElement&>(*store_->getChartElement(id)).name != name;
        renamed += isMerged ? 1 : 0;
        ++seen;
        if (isMerged)
            continue;
        ASSERT_TRUE(name.empty() || isCalled(id, name)) << row[Ident] << " " << name;
        for (const std::string& word : wordsOf(name))
            ASSERT_TRUE(isCalled(id, word)) << row[Ident] << " " << word;
    }
    EXPECT_LT(renamed, 10); // two rows of one airport
    EXPECT_GT(seen, 85000);
}

} // namespace
} // namespace skyvane

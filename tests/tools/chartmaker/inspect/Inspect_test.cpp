#include "chart/elements/GroundGeometryElement.h"
#include "chart/elements/WaypointElement.h"
#include "chart/store/ElementFiles.h"
#include "chart/store/SetDescription.h"
#include "sensors/TemporaryFolder.h"
#include "tools/chartmaker/ChartMakerRun.h"

#include <filesystem>

namespace skyvane {
namespace {

/// A set of a waypoint and a lake, to be broken.
struct Inspect : testing::Test {
    TemporaryFolder folder;
    const std::string sci = folder.path("set.sci");

    Inspect() {
        std::filesystem::create_directory(folder.path("set"));
        SetDescription{3, "Vendor\x1b[1m", "Area", "set"}.save(sci);
        ElementFilesWriter files(folder.path("set"));
        WaypointElement fix;
        fix.ident = "TEST";
        fix.position = {1.5, 42.5};
        GroundGeometryElement lake;
        lake.feature = 13;
        lake.name = "L\n\x07";
        lake.vertices = {{1.2, 42.2}, {1.8, 42.2}, {1.8, 42.8}};
        files.add(fix);
        files.add(lake);
        EXPECT_TRUE(files.finish());
    }

    std::string file(const char* name) const { return folder.path(std::string("set/") + name); }
    ChartMakerRun dump() const { return ChartMakerRun({"dump", sci}); }
    ChartMakerRun draw(const std::string& box = "1,42,2,43") const {
        return ChartMakerRun({"draw", sci, "--box", box, "--out", folder.path("map.png"), "--width", "200"});
    }
};

TEST_F(Inspect, ShowsAGoodSet) {
    const ChartMakerRun all = dump();
    EXPECT_EQ(all.status, 0) << all.error;
    EXPECT_NE(all.out.find("Vendor:   Vendor?[1m\n"), std::string::npos) << "control characters reach no terminal";
    EXPECT_NE(all.out.find("      0  Waypoint         42.500000    1.500000  TEST - Waypoint\n"), std::string::npos);
    EXPECT_NE(all.out.find("Lake: L ?\n"), std::string::npos);
    const ChartMakerRun one = ChartMakerRun({"dump", folder.path("set"), "--element", "0"});
    EXPECT_EQ(one.status, 0);
    EXPECT_NE(one.out.find("Ident = TEST"), std::string::npos) << one.out;
    EXPECT_EQ(draw().status, 0);
    EXPECT_GT(std::filesystem::file_size(folder.path("map.png")), 500u);
}

TEST_F(Inspect, ShowsWhatIsLeftOfABrokenSet) {
    std::filesystem::resize_file(file(ElementsFileName), 40);
    const ChartMakerRun cut = dump();
    EXPECT_EQ(cut.status, 1);
    EXPECT_NE(cut.out.find("can't be read"), std::string::npos) << cut.out;
    EXPECT_EQ(draw().status, 0) << "a picture of the rest";

    std::filesystem::resize_file(file(ElementOffsetsFileName), 12);
    EXPECT_NE(dump().error.find("ends before its elements"), std::string::npos) << dump().error;
    folder.write(std::string("set/") + ElementOffsetsFileName, std::string("\x07\0\0\0\1\0\0\0\0\0\0\0", 12));
    EXPECT_NE(dump().error.find("another version"), std::string::npos);
    folder.write(std::string("set/") + ElementOffsetsFileName, std::string("\2\0\0\0\2\0\0\0\x20\0\0\0\x10\0\0\0", 16));
    EXPECT_NE(dump().error.find("decrease"), std::string::npos);
    EXPECT_EQ(draw().status, 1);
    folder.remove(std::string("set/") + ElementOffsetsFileName);
    EXPECT_NE(dump().error.find("missing"), std::string::npos);
}

TEST_F(Inspect, NamesWrongArguments) {
    for (const Arguments& arguments : std::vector<Arguments>{{"dump"},
                                                             {"dump", sci, "--element", "-1"},
                                                             {"dump", sci, "--element", "1.5"},
                                                             {"dump", sci, sci},
                                                             {"draw", sci, "--out", "x.png"},
                                                             {"draw", sci, "--box", "world", "--out", "x.png"},
                                                             {"draw", sci, "--box", "2,43,1"},
                                                             {"draw", sci, "--width", "9000"}})
        EXPECT_EQ(ChartMakerRun(arguments).status, 2) << arguments.back();
    EXPECT_EQ(ChartMakerRun({"dump", sci, "--element", "2"}).status, 1);
    EXPECT_EQ(ChartMakerRun({"draw", sci, "--box", "1,42,2,43", "--out", folder.path("no/where.png")}).status, 1);
}

TEST_F(Inspect, DrawsAnyBox) {
    for (const char* box :
         {"-180,-90,180,90", "179,-1,-179,1", "1.5,42.5,1.500001,42.500001", "1,89,2,90", "1,-90,1.01,90"})
        EXPECT_EQ(draw(box).status, 0) << box;
}

} // namespace
} // namespace skyvane

#include "chart/store/SetDescription.h"

#include "sensors/TemporaryFolder.h"

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace skyvane {
namespace {

TEST(SetDescription, isReadFromItsDocument) {
    TemporaryFolder folder;
    folder.write("a.sci", "ChartVersion=12\nVendor=Open = Air\nAreaName=Europe\nLocation=europe//north/\n");
    const SetDescription set = SetDescription::load(folder.path("a.sci"));
    EXPECT_EQ(set.chartVersion, 12);
    EXPECT_EQ(set.areaName, "Europe");
    EXPECT_EQ(set.getFolder("/data/ChartData/"), "/data/ChartData/europe/north");
    EXPECT_EQ((SetDescription{1, "", "", "/elsewhere/"}.getFolder("/data/")), "/elsewhere");
    EXPECT_EQ((SetDescription{1, "", "", "/"}.getFolder("/data/")), "/");
    EXPECT_EQ(SetDescription::load(folder.path("none.sci")).chartVersion, 0);
}

TEST(SetDescription, readsWhatItWrote) {
    TemporaryFolder folder;
    const std::string path = folder.path("a.sci");
    ASSERT_TRUE((SetDescription{-3, "Ven#dor\n", "[Area]", "lo=cation"}.save(path)));
    const SetDescription set = SetDescription::load(path);
    EXPECT_EQ(set.chartVersion, -3);
    EXPECT_EQ(set.vendor, "Ven#dor\n");
    EXPECT_EQ(set.areaName, "[Area]");
    EXPECT_EQ(set.location, "lo=cation");
    ASSERT_TRUE((SetDescription{2, "V", "A", "l"}.save(path)));
    std::ifstream in(path);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(in), {}),
              "AreaName = A\nChartVersion = 2\nLocation = l\nVendor = V\n\n");
    EXPECT_FALSE((SetDescription().save(folder.path("no/such.sci"))));
}

} // namespace
} // namespace skyvane

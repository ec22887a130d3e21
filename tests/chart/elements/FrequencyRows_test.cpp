#include "chart/elements/FrequencyRows.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

TEST(FrequencyRows, TellEachChannelWithItsService) {
    const FrequencyMap frequencies{
        {"TWR", {{118, 275}, {119, 500}}}, {"VOR", {{114, 300}}}, {"NDB: 350 khz", {}}, {"", {{121, 5}}}};
    const std::vector<std::string> expected{"121.005", "NDB: 350 khz", "TWR  118.275", "TWR  119.50", "VOR  114.30"};
    EXPECT_EQ(frequencyRows(frequencies), expected);
}

} // namespace
} // namespace skyvane

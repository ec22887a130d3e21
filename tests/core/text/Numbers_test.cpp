#include "core/text/Numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace skyvane {
namespace {

TEST(Numbers, readLeadingNumbers) {
    EXPECT_EQ(toInt(" \t\n-12abc"), -12);
    EXPECT_EQ(toInt("+7"), 7);
    EXPECT_EQ(toInt("3.9"), 3);
    EXPECT_EQ(toInt("+-7", 5), 5);
    EXPECT_EQ(toInt("", 5), 5);
    EXPECT_EQ(toInt(std::string("\0007", 2), 5), 5);
    EXPECT_EQ(toInt("2147483647"), 2147483647);
    EXPECT_EQ(toInt("2147483648", 5), 5);
    EXPECT_EQ(toUnsigned("4294967295"), 4294967295u);
    EXPECT_EQ(toUnsigned("-1", 5u), 5u);
    EXPECT_DOUBLE_EQ(toDouble(" +12.5e1x"), 125.0);
    EXPECT_DOUBLE_EQ(toDouble("-.5"), -0.5);
    EXPECT_DOUBLE_EQ(toDouble("12,5"), 12.0);
    EXPECT_DOUBLE_EQ(toDouble("inf", 5.0), 5.0);
    EXPECT_DOUBLE_EQ(toDouble("nan", 5.0), 5.0);
    EXPECT_DOUBLE_EQ(toDouble("1e999", 5.0), 5.0);
    EXPECT_TRUE(toBool("-1"));
    EXPECT_FALSE(toBool("0", true));
    EXPECT_TRUE(toBool("yes", true));
}

TEST(Numbers, writeTextThatReadsBack) {
    for (const double value : {0.1, -1.0 / 3.0, 9.35, 1e300, 5e-324, 123456789.123, 0.0})
        EXPECT_EQ(toDouble(toText(value), 99.0), value);
    EXPECT_EQ(toText(0.1), "0.1");
    EXPECT_EQ(toText(-5), "-5");
}

TEST(Numbers, roundFixedTextsHalvesAwayFromZero) {
    EXPECT_EQ(toFixedText(0.125, 2), "0.13");
    EXPECT_EQ(toFixedText(-0.125, 2), "-0.13");
    EXPECT_EQ(toFixedText(1.005, 2), "1.01");
    EXPECT_EQ(toFixedText(2.5, 0), "3");
    EXPECT_EQ(toFixedText(-0.4, 0), "0");
    EXPECT_EQ(toFixedText(-0.004, 2), "0.00");
    EXPECT_EQ(toFixedText(9.999, 2), "10.00");
    EXPECT_EQ(toFixedText(99.95, 1), "100.0");
    EXPECT_EQ(toFixedText(7.0, 3), "7.000");
    EXPECT_EQ(toFixedText(1e21, 1), "1000000000000000000000.0");
    EXPECT_EQ(toFixedText(5e-324, 1), "0.0");
}

TEST(Numbers, roundWholeNumbersHalvesAwayFromZero) {
    EXPECT_EQ(roundHalfAway(2.5), 3);
    EXPECT_EQ(roundHalfAway(-2.5), -3);
    EXPECT_EQ(roundHalfAway(2.4999), 2);
    EXPECT_EQ(roundHalfAway(1e20), std::numeric_limits<int>::max());
    EXPECT_EQ(roundHalfAway(-1e20), std::numeric_limits<int>::min());
    EXPECT_EQ(roundHalfAway(std::nan("")), 0);
}

} // namespace
} // namespace skyvane

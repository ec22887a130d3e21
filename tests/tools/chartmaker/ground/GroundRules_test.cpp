#include "chartmaker/ground/GroundRules.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace skyvane {
namespace {

using Tags = std::map<std::string, std::string>;

std::string classify(const GroundRules& rules, const Tags& tags, GroundShape shape) {
    const auto kind = rules.classify(
        [&](const std::string& key) {
            const auto found = tags.find(key);
            return found == tags.end() ? std::string() : found->second;
        },
        shape);
    return kind ? std::to_string(kind->feature) + (kind->isArea ? " area" : " line ") +
                      (kind->isArea ? "" : std::to_string(kind->widthSteps))
                : "none";
}

TEST(GroundRules, StandardRulesKnowTheSources) {
    const struct {
        Tags tags;
        GroundShape shape;
        const char* wanted;
    } cases[] = {
        {{{"highway", "motorway"}}, GroundShape::OpenLine, "9 line 32"},
        {{{"highway", "motorway"}}, GroundShape::Polygon, "none"},
        {{{"highway", "residential"}}, GroundShape::OpenLine, "none"},
        {{{"railway", "rail"}, {"service", "siding"}}, GroundShape::OpenLine, "none"},
        {{{"waterway", "river"}, {"width", "120.4 m"}}, GroundShape::OpenLine, "11 line 241"},
        {{{"waterway", "river"}, {"width", "-3"}}, GroundShape::OpenLine, "11 line 20"},
        {{{"waterway", "river"}, {"width", "1e99"}}, GroundShape::OpenLine, "11 line 20"},
        {{{"natural", "water"}}, GroundShape::ClosedLine, "13 area"},
        {{{"natural", "water"}}, GroundShape::OpenLine, "none"},
        {{{"natural", "water"}, {"water", "river"}}, GroundShape::Polygon, "11 area"},
        {{{"natural", "coastline"}}, GroundShape::Polygon, "12 line 0"},
        {{{"boundary", "administrative"}, {"admin_level", "4"}}, GroundShape::OpenLine, "none"},
        {{{"boundary", "administrative"}, {"admin_level", "2"}, {"maritime", "yes"}}, GroundShape::OpenLine, "none"},
        {{{"boundary", "administrative"}, {"admin_level", "2"}, {"waterway", "river"}},
         GroundShape::OpenLine,
         "17 line 20"},
        {{{"aeroway", "taxiway"}, {"lit", "yes"}}, GroundShape::OpenLine, "0 line 30"},
        {{{"aeroway", "apron"}}, GroundShape::Polygon, "4 area"},
        {{{"featurecla", "Road"}, {"type", "Beltway"}}, GroundShape::OpenLine, "9 line 32"},
        {{{"featurecla", "Alkaline Lake"}}, GroundShape::Polygon, "13 area"},
        {{{"featurecla", "International boundary (verify)"}}, GroundShape::OpenLine, "14 line 0"},
        {{{"fclass", "reservoir"}}, GroundShape::Polygon, "13 area"},
        {{}, GroundShape::Polygon, "none"},
    };
    for (const auto& test : cases)
        EXPECT_EQ(classify(GroundRules::standard(), test.tags, test.shape), test.wanted)
            << (test.tags.empty() ? "" : test.tags.begin()->second);
}

TEST(GroundRules, TellsWhatIsNoRule) {
    std::string errors;
    const GroundRules rules = GroundRules::parse("# words\n"
                                                 "a=b|c d=e f : line 2 Railway\n"
                                                 "a=b : ribbon 2 Railway\n"
                                                 "a=b : line wide Railway\n"
                                                 "a=b : line 2 Canal Boat\n"
                                                 ": line 2 Railway\n"
                                                 "word : line 2 Railway\n",
                                                 errors);
    EXPECT_EQ(std::count(errors.begin(), errors.end(), '\n'), 5);
    EXPECT_EQ(classify(rules, {{"a", "C"}, {"d", "E f"}}, GroundShape::OpenLine), "10 line 4");
    EXPECT_EQ(classify(rules, {{"a", "C"}, {"d", "E"}}, GroundShape::OpenLine), "none");
}

} // namespace
} // namespace skyvane

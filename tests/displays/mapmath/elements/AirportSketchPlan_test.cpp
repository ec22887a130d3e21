#include "displays/mapmath/elements/AirportSketchPlan.h"

#include "chart/areas/AreaLeaf.h"
#include "chart/elements/AirportElement.h"
#include "chart/elements/GroundGeometryElement.h"
#include "chart/store/IChartElementSource.h"

#include <cmath>
#include <gtest/gtest.h>

namespace skyvane {
namespace {

SketchFrame frameOf(int width, int height, bool metric = true) {
    return {{width, height}, metric, [](const std::string& text, double lineHeight) {
                return 0.5 * lineHeight * static_cast<double>(text.size());
            }};
}

/// Two parallel runways of 1500 m to the east, and one to the north.
AirportElement threeRunways() {
    AirportElement airport;
    airport.position = {1.4, 42.3};
    airport.runways.resize(3);
    for (Runway& runway : airport.runways) {
        runway.surface = Runway::Solid;
        runway.lengthFeet = 4921;
        runway.widthFeet = 148;
        runway.directionDegrees = 90;
    }
    airport.runways[0].ends[0].name = "09L";
    airport.runways[0].ends[1].name = "27R";
    airport.runways[1].ends[0].name = "09R";
    airport.runways[1].ends[1].name = "27L";
    airport.runways[2].directionDegrees = 0;
    return airport;
}

const SketchText* find(const SketchPlan& plan, const std::string& text) {
    for (const SketchText& each : plan.texts)
        if (each.text == text)
            return &each;
    return nullptr;
}

TEST(AirportSketchPlan, identsStandAtTheirEndsAndApart) {
    for (const auto& size : {std::pair<int, int>(150, 100), {300, 200}, {800, 600}, {200, 500}}) {
        const SketchFrame frame = frameOf(size.first, size.second);
        const SketchPlan plan = planAirportSketch(threeRunways(), {}, frame);
        std::vector<ShapeRect> places;
        for (const char* ident : {"09L", "09R", "27L", "27R", "36", "18"}) {
            const SketchText* text = find(plan, ident);
            ASSERT_TRUE(text) << ident;
            const ShapePoint half(0.25 * text->height * static_cast<double>(text->text.size()), 0.5 * text->height);
            places.emplace_back(text->middle - half, text->middle + half);
            EXPECT_GE(places.back().UpperLeftCorner.X, -0.01);
            EXPECT_LE(places.back().LowerRightCorner.Y, size.second + 0.01);
            for (size_t i = 0; i + 1 < places.size(); ++i)
                EXPECT_FALSE(places[i].isRectCollided(places.back())) << ident << " at " << size.first;
        }
        EXPECT_LT(find(plan, "09L")->middle.X, find(plan, "27R")->middle.X);
        EXPECT_LT(find(plan, "09L")->middle.Y, find(plan, "09R")->middle.Y); // the left one, seen flying east, is north
        EXPECT_GT(find(plan, "36")->middle.Y, find(plan, "18")->middle.Y);
    }
}

TEST(AirportSketchPlan, runwaysAreToScale) {
    AirportElement airport = threeRunways();
    airport.runways.resize(1);
    const SketchPlan plan = planAirportSketch(airport, {}, frameOf(800, 600));
    float west = 1e9f, east = -1e9f;
    for (const auto& vertex : plan.shapes.vertices)
        if (vertex.argb == 0xff33363c) {
            west = std::min(west, vertex.place.X);
            east = std::max(east, vertex.place.X);
        }
    EXPECT_NEAR((east - west) / plan.pixelsPerMetre, 1500.0, 5.0);
    EXPECT_TRUE(find(plan, "1500 x 45 m"));
    EXPECT_TRUE(find(planAirportSketch(airport, {}, frameOf(150, 100, false)), "4921 ft"));
}

TEST(AirportSketchPlan, emptyAndWildAirports) {
    AirportElement airport;
    EXPECT_FALSE(planAirportSketch(airport, {}, frameOf(150, 100)).shapes.isEmpty());
    EXPECT_TRUE(planAirportSketch(airport, {}, frameOf(0, 0)).shapes.isEmpty());
    airport.runways.resize(2);
    airport.runways[0].lengthFeet = 4000000000u;
    airport.runways[0].surface = 77;
    airport.runways[1].ends[0].threshold = {-179.9, 89.9};
    airport.runways[1].ends[0].isThresholdKnown = true;
    for (const auto& text : planAirportSketch(airport, {}, frameOf(150, 100)).texts) {
        EXPECT_TRUE(std::isfinite(text.middle.X) && std::isfinite(text.middle.Y));
    }
}

/// A chart whose one leaf holds a taxiway, an apron, a road and a mast.
class OneLeaf : public IChartElementSource {
public:
    OneLeaf() : leaf_({1.0, 42.5}, {1.5, 42.0}, 0) {
        add(1, GroundGeometryElement::Line, 1.4);
        add(4, GroundGeometryElement::Polygon, 1.4);
        add(9, GroundGeometryElement::Line, 1.4);
        add(1, GroundGeometryElement::Line, 1.1); // of another airport
    }
    IChartElement* getChartElement(int id) override { return &elements_[static_cast<size_t>(id)]; }
    IArea* getArea(int index) override { return index == 0 ? &leaf_ : nullptr; }

private:
    void add(uint8_t feature, uint8_t geoType, double longitude) {
        GroundGeometryElement element;
        element.feature = feature;
        element.geoType = geoType;
        element.additionalData = 30;
        element.vertices = {{longitude, 42.3}, {longitude + 0.001, 42.3}, {longitude + 0.001, 42.301}};
        element.recalculateBoundingBox();
        char bytes[3];
        element.writeStaticData(bytes);
        leaf_.addElement(static_cast<int>(elements_.size()), reinterpret_cast<const uint8_t*>(bytes));
        elements_.push_back(element);
    }

    AreaLeaf leaf_;
    std::vector<GroundGeometryElement> elements_;
};

TEST(AirportGround, whatLiesAroundTheAirport) {
    OneLeaf chart;
    const AirportGround ground = findAirportGround(chart, threeRunways());
    ASSERT_EQ(ground.features.size(), 2u);
    EXPECT_EQ(ground.features[0].feature, 4); // aprons below taxiways
    EXPECT_EQ(ground.features[1].feature, 1);
    EXPECT_EQ(ground.features[1].widthMetres, 15.0);
    EXPECT_NEAR(ground.features[1].points[2].Y, 111.2, 0.1);
}

} // namespace
} // namespace skyvane

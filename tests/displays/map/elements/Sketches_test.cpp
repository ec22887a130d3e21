#include "chart/elements/AirportElement.h"
#include "chart/elements/AirspaceElement.h"
#include "chart/elements/AirwayElement.h"
#include "chart/elements/GroundGeometryElement.h"
#include "chart/elements/MarkElement.h"
#include "chart/elements/NDBElement.h"
#include "chart/elements/ObstructionElement.h"
#include "chart/elements/VORElement.h"
#include "chart/elements/WaypointElement.h"
#include "displays/map/IChartElementRenderer.h"
#include "displays/map/elements/ElementScene.h"
#include "support/AllocationCounter.h"

namespace skyvane {
namespace {

using irr::core::rect;

Runway runway(uint32_t surface, uint32_t length, uint32_t runwayWidth, uint32_t direction) {
    Runway result;
    result.surface = surface;
    result.lengthFeet = length;
    result.widthFeet = runwayWidth;
    result.directionDegrees = direction;
    return result;
}

AirportElement airport(std::initializer_list<Runway> runways) {
    AirportElement result;
    result.position = {1.4, 42.3};
    result.runways = runways;
    return result;
}

class Sketches : public ElementScene {
protected:
    void sketch(const IChartElement& element, const rect<int>& place) {
        context->getChartElementRenderer(element.getType())->renderSketch(&element, place);
    }
};

TEST_F(Sketches, ofEveryKind) {
    VORElement vor;
    vor.ident = "LUM";
    vor.name = "LUMBIER";
    vor.frequency = {112, 500};
    vor.vorType = VORElement::VorDme;
    NDBElement ndb;
    ndb.ident = "SEO";
    ndb.frequencyKilohertz = 413;
    WaypointElement fix;
    fix.ident = "BISBA";
    WaypointElement reporting = fix;
    reporting.isReportingPoint = true;
    MarkElement mark;
    mark.name = "Lunch";
    ObstructionElement mast;
    mast.heightAglFeet = 620;
    mast.altitudeMslFeet = 3120;
    mast.hasKnownLighting = true;
    AirwayElement airway;
    airway.start = {1.0, 42.0};
    airway.end = {2.0, 42.3};
    airway.name = "UN975";
    airway.isLowAltitude = true;
    airway.isOneDirection = true;
    airway.minimumEnroute = {9500, true};
    AirspaceElement airspace;
    airspace.airspaceClass = "D";
    airspace.name = "ANDORRA-LA SEU CTR";
    airspace.topFeet = 6500;
    airspace.bottomFeet = AirspaceElement::Unlimited;
    airspace.vertices = {{1.2, 42.2}, {1.6, 42.2}, {1.6, 42.45}, {1.4, 42.45}, {1.4, 42.35}, {1.2, 42.4}};
    GroundGeometryElement lake;
    lake.feature = 13;
    lake.vertices = {{1.2, 42.2}, {1.6, 42.2}, {1.5, 42.3}, {1.6, 42.45}, {1.4, 42.45}, {1.4, 42.35}, {1.2, 42.4}};
    GroundGeometryElement rails;
    rails.feature = 10;
    rails.geoType = GroundGeometryElement::Line;
    rails.vertices = lake.vertices;
    const IChartElement* all[] = {&vor, &ndb, &fix, &reporting, &mark, &mast, &airway, &airspace, &lake, &rails};
    frame([&] {
        int i = 0;
        for (const IChartElement* each : all) {
            const int x = 4 + i % 3 * 264, y = 4 + i / 3 * 148;
            sketch(*each, rect<int>(x, y, x + 260, y + 144));
            ++i;
        }
    });
    gl.savePicture("sketchKinds.png");
    const auto has = [&](int i, uint32_t argb) {
        const int x = 4 + i % 3 * 264, y = 4 + i / 3 * 148;
        return count(rect<int>(x, y, x + 260, y + 144), argb);
    };
    EXPECT_GT(has(0, 0xff0000ff), 100);
    EXPECT_GT(has(1, 0xfffa6cff), 100);
    EXPECT_GT(has(2, 0xff33f8ff), 100);
    EXPECT_GT(has(3, 0xffffffff), 600); // filled
    EXPECT_GT(has(4, 0xffe8203c), 100);
    EXPECT_GT(has(5, 0xffffb000), 100);
    EXPECT_GT(has(6, 0xff3c96e1), 100);
    EXPECT_GT(has(7, 0xff8ac6ff), 100);
    EXPECT_GT(has(8, 0xff3f7fc4), 2000);
    EXPECT_GT(has(9, 0xff2d3036), 300);
    EXPECT_EQ(count(rect<int>(268, 450, width, height), 0xff808080, 0),
              (width - 268) * (height - 450)); // nothing beyond
}

TEST_F(Sketches, ofAirportsAtAllSizes) {
    Runway left = runway(Runway::Solid, 9000, 148, 70), right = left;
    left.ends[0].name = "07L";
    left.ends[1].name = "25R";
    right.ends[0].name = "07R";
    right.ends[1].name = "25L";
    const AirportElement parallel = airport({left, right, runway(Runway::Solid, 7000, 148, 20)});
    const AirportElement small = airport({runway(Runway::Solid, 4167, 92, 210)});
    const AirportElement grass = airport({runway(Runway::Grass, 2100, 100, 90), runway(Runway::Grass, 1500, 80, 140)});
    const AirportElement water = airport({runway(Runway::Water, 6000, 300, 120)});
    AirportElement heliport = airport({});
    heliport.isHeliport = true;
    const AirportElement* all[] = {&small, &parallel, &grass, &water, &heliport};
    for (const auto& size : {irr::core::dimension2d<int>(150, 100), {260, 190}}) {
        frame([&] {
            int x = 4, y = 4;
            for (const AirportElement* each : all) {
                if (x + size.Width > width) {
                    x = 4;
                    y += size.Height + 4;
                }
                sketch(*each, rect<int>(x, y, x + size.Width, y + size.Height));
                x += size.Width + 4;
            }
        });
        gl.savePicture(("sketches" + std::to_string(size.Width) + ".png").c_str());
        const rect<int> whole(0, 0, width, height);
        for (const uint32_t surface : {0xff33363cu, 0xff8fc46au, 0xff4a90d9u})
            EXPECT_GT(count(whole, surface), size.Width) << std::hex << surface;
        EXPECT_GT(count(whole, 0xffffe08a), size.Width / 4); // lengths
    }
    frame([&] { sketch(parallel, rect<int>(0, 0, width, height)); });
    gl.savePicture("sketch800.png");
}

TEST_F(Sketches, thatStayAllocateNothing) {
    const AirportElement field = airport({runway(Runway::Solid, 7000, 148, 20), runway(Runway::Grass, 2100, 100, 90)});
    AirspaceElement airspace;
    airspace.airspaceClass = "D";
    airspace.vertices = {{1.2, 42.2}, {1.6, 42.2}, {1.6, 42.45}};
    for (const IChartElement* element :
         {static_cast<const IChartElement*>(&field), static_cast<const IChartElement*>(&airspace)}) {
        const auto draw = [&] { sketch(*element, rect<int>(0, 0, 400, 300)); };
        for (int i = 0; i < 3; ++i)
            frame(draw);
        size_t allocations = 0;
        frame([&] {
            const AllocationCounter counter;
            draw();
            allocations = counter.count();
        });
        EXPECT_EQ(allocations, 0u);
    }
}

} // namespace
} // namespace skyvane

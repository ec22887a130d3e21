#include "chart/elements/AirportElement.h"
#include "chart/elements/AirspaceElement.h"
#include "chart/elements/AirwayElement.h"
#include "chart/elements/GroundGeometryElement.h"
#include "chart/elements/MarkElement.h"
#include "chart/elements/NDBElement.h"
#include "chart/elements/ObstructionElement.h"
#include "chart/elements/VORElement.h"
#include "chart/elements/WaypointElement.h"
#include "chart/store/IChart.h"
#include "displays/map/IChartElementRenderer.h"
#include "displays/map/Map2D.h"
#include "displays/map/Map2DFactory.h"
#include "displays/map/MapParts.h"
#include "displays/map/elements/ElementScene.h"
#include "sensors/SensorFakes.h"
#include "sensors/SensorManager.h"
#include "sensors/StandardDataFactories.h"
#include "sensors/records/Altitude_Data.h"
#include "sensors/records/Heading_Data.h"
#include "sensors/records/Position_Data.h"
#include "sensors/records/Traffic_Data.h"

#include <cmath>
#include <limits>
#include <map>
#include <random>

namespace skyvane {
namespace {

using irr::core::rect;

/// A running map over the user's own elements, off the coast of nowhere: around 0 N 0 E.
class ElementsOnMap : public ElementScene {
protected:
    void SetUp() override {
        ElementScene::SetUp();
        if (!context)
            return;
        loadSensors();
        panels().loadFontSettingsFromIni(&ini);
        panels().loadPanelSettingsFromIni(&ini, nullptr, false, false);
    }
    void TearDown() override {
        map.reset();
        factory.reset();
        ElementScene::TearDown();
    }
    PanelManager& panels() { return *context->getPanelManager(); }

    void loadSensors() {
        SensorManager& sensors = *context->getSensorManager();
        addStandardDataFactories(sensors);
        sensors.addSensorFactory(std::make_unique<FakeSensorFactory>());
        IniFile document;
        document.setFromString("SensorCount = 2\nD2 = 1\nD4 = 1\nD5 = 1\nD15 = 1\n[S1]\nFactoryIndex = 0\n");
        sensors.loadSensorSettingsFromIni(&document, false);
        sensor = dynamic_cast<FakeSensor*>(sensors.getSensorInterface(1));
        ASSERT_NE(sensor, nullptr);
        fly(90.0, 1000.0);
    }
    void fly(double heading, double altitude, const ChartPosition& position = {}) {
        sensor->put<Position_Data>(ISensorData::Position, position.longitude, position.latitude, 1u);
        sensor->put<Heading_Data>(ISensorData::Heading, heading, 1u);
        sensor->put<Altitude_Data>(ISensorData::Altitude, altitude, 1u);
    }

    template <class Element>
    std::unique_ptr<Element> at(double longitude, double latitude) {
        auto element = std::make_unique<Element>();
        element->position = {longitude, latitude};
        return element;
    }
    int add(std::unique_ptr<IChartElement> element) {
        const int id = panels().getChart()->addCustomChartElement(std::move(element));
        EXPECT_NE(id, 0);
        return id;
    }

    void openMap(const char* settings) {
        IniFile document;
        const std::string text = std::string("[P0]\nterrainEnable = 1\nlowObstacles = 1\nbgType = none\n"
                                             "drawNose = 0\nplaneSize = 0.001\nmapElementSize = 0.09\n") +
                                 settings;
        document.setFromString(text.c_str());
        panels().getChart()->deleteCache(); // elements as they are read from their documents
        factory = std::make_unique<Map2DFactory>(context.get());
        factory->loadSetupFromIni(&document, "P0");
        std::unique_ptr<IPanel> panel = factory->Create();
        map.reset(static_cast<Map2D*>(panel.release()));
        draw();
    }
    /// Frames until the map is as it shall be: a zoom waits for a moment, and tiles fill while time goes on.
    void draw() {
        const double start = Secs();
        for (int i = 0; i < 8 || Secs() - start < 0.5; ++i) {
            gl.begin();
            map->render(rect<int>(0, 0, width, height));
            context->getDrawer()->flush();
            gl.end();
        }
    }
    void zoom(int steps) {
        irr::SEvent event{};
        event.EventType = irr::EET_MOUSE_INPUT_EVENT;
        event.MouseInput.Event = irr::EMIE_MOUSE_WHEEL;
        event.MouseInput.X = width / 2;
        event.MouseInput.Y = height / 2;
        event.MouseInput.Wheel = steps > 0 ? 1.0f : -1.0f;
        for (int i = 0; i < std::abs(steps); ++i)
            map->processEvent(event);
        draw();
    }

    irr::core::vector2d<int> pixelOf(double longitude, double latitude) {
        return map->calcScreenCoordinates(longitude, latitude, false);
    }
    /// Pixels of that colour around a place of the map.
    int around(double longitude, double latitude, uint32_t argb, int reach = 20, int tolerance = 24) {
        const auto middle = pixelOf(longitude, latitude);
        rect<int> area(middle.X - reach, middle.Y - reach, middle.X + reach, middle.Y + reach);
        area.clipAgainst(rect<int>(0, 0, width, height));
        return count(area, argb, tolerance);
    }
    bool isHit(int id, int dx, int dy) {
        IChartElement* element = panels().getChart()->getChartElement(id);
        const ChartPosition place = element->getPosition();
        return context->getChartElementRenderer(element->getType())
            ->isMouseOver2D(map.get(), element, id,
                            pixelOf(place.longitude, place.latitude) + irr::core::vector2d<int>(dx, dy));
    }

    IniFile ini;
    FakeSensor* sensor = nullptr;
    std::unique_ptr<Map2DFactory> factory;
    std::unique_ptr<Map2D> map;
};

std::unique_ptr<GroundGeometryElement> ground(uint8_t feature, uint8_t geoType, std::vector<ChartPosition> vertices) {
    auto element = std::make_unique<GroundGeometryElement>();
    element->feature = feature;
    element->geoType = geoType;
    element->vertices = std::move(vertices);
    element->recalculateBoundingBox();
    return element;
}

TEST_F(ElementsOnMap, eachKindHasItsSymbolAtItsPlace) {
    auto field = at<AirportElement>(0.15, 0.15);
    field->runways.resize(1);
    field->runways[0].surface = Runway::Grass;
    field->runways[0].lengthFeet = 5000;
    field->runways[0].widthFeet = 300;
    field->runways[0].directionDegrees = 90;
    field->ident = "";
    field->name = "";
    const int airport = add(std::move(field));
    auto vorElement = at<VORElement>(-0.15, 0.15);
    const int vor = add(std::move(vorElement));
    add(at<NDBElement>(-0.15, 0.0));
    auto fix = at<WaypointElement>(-0.15, -0.15);
    fix->use.lowAltitude = true;
    add(std::move(fix));
    add(at<MarkElement>(0.0, 0.15));
    auto mast = at<ObstructionElement>(0.15, 0.0);
    mast->altitudeMslFeet = 3281; // level with the aircraft
    add(std::move(mast));
    mast = at<ObstructionElement>(0.15, -0.15);
    mast->altitudeMslFeet = 2500; // 238 m below it
    add(std::move(mast));
    auto airway = std::make_unique<AirwayElement>();
    airway->start = {-0.35, -0.25};
    airway->end = {0.35, -0.25};
    airway->isLowAltitude = true;
    const int way = add(std::move(airway));
    auto airspace = std::make_unique<AirspaceElement>();
    airspace->airspaceClass = "C";
    airspace->vertices = {{-0.3, -0.3}, {-0.3, 0.3}, {0.3, 0.3}, {0.3, -0.3}};
    airspace->topFeet = 5000;
    const int zone = add(std::move(airspace));
    add(ground(13, GroundGeometryElement::Polygon, {{-0.08, -0.2}, {0.08, -0.2}, {0.08, -0.1}, {-0.08, -0.1}}));
    auto road = ground(9, GroundGeometryElement::Line, {{-0.38, 0.26}, {0.38, 0.26}});
    road->additionalData = 32;
    add(std::move(road));

    openMap("lowIFR = 1\nairways = 1\nmarks = 1\ndescriptions = 0\n");
    gl.savePicture("kinds.png");
    EXPECT_GT(around(0.15, 0.15, 0xff8fc46a), 30); // the runway's grass
    EXPECT_GT(around(-0.15, 0.15, 0xff0000ff), 60);
    EXPECT_GT(around(-0.15, 0.0, 0xfffa6cff), 20);
    EXPECT_GT(around(-0.15, -0.15, 0xff33f8ff), 20);
    EXPECT_GT(around(0.0, 0.15, 0xffe8203c), 40);
    EXPECT_GT(around(0.15, 0.0, 0xffff0000), 30);
    EXPECT_EQ(around(0.15, 0.0, 0xff00ff00), 0);
    EXPECT_GT(around(0.15, -0.15, 0xff00ff00), 30);
    EXPECT_GT(around(0.1, -0.25, 0xff3c96e1), 30);
    EXPECT_GT(around(0.3, 0.08, 0xfff700f7), 60);
    EXPECT_GT(around(0.0, -0.15, 0xff3f7fc4, 10), 300); // all of the lake
    EXPECT_GT(around(0.2, 0.26, 0xffffc860, 20, 70), 20);

    EXPECT_TRUE(isHit(airport, 5, 3));
    EXPECT_FALSE(isHit(airport, 80, 3));
    EXPECT_TRUE(isHit(vor, -8, 8));
    EXPECT_FALSE(isHit(vor, -8, 80));
    EXPECT_TRUE(isHit(way, 200, 0)); // its middle is its position
    EXPECT_FALSE(isHit(way, 0, 60));
    EXPECT_TRUE(isHit(zone, 60, -60)); // inside of its south-western corner
    EXPECT_FALSE(isHit(zone, -60, 60));

    zoom(-4);
    ASSERT_GT(map->getViewArea(), 2.5);
    gl.savePicture("kindsFar.png");
    EXPECT_GT(around(0.15, 0.15, 0xff008000, 14), 30); // the symbol, in the colour of grass
    EXPECT_GT(around(0.15, 0.15, 0xffffffff, 14), 60);
    EXPECT_LT(around(0.15, 0.15, 0xff8fc46a, 14), 10);
    EXPECT_EQ(around(-0.15, -0.15, 0xff33f8ff), 0); // fixes are for nearer views
}

TEST_F(ElementsOnMap, obstaclesFollowTheAircraftAndTheTrack) {
    auto mast = at<ObstructionElement>(0.2, 0.0);
    mast->altitudeMslFeet = 3281;
    const int id = add(std::move(mast));
    openMap("descriptions = 0\n");
    IChartElementRenderer& renderer = *context->getChartElementRenderer(IChartElement::OBSTRUCTION);
    IChartElement* element = panels().getChart()->getChartElement(id);
    char bytes[IChartElement::StaticDataSize];
    element->writeStaticData(bytes);
    EXPECT_TRUE(renderer.will2DMapChange(map.get(), element, 1000.0, 1200.0));
    EXPECT_FALSE(renderer.will2DMapChange(map.get(), element, 1000.0, 1040.0)); // red both times
    EXPECT_FALSE(renderer.may2DMapPotentiallyChange(map.get(), bytes, 1500.0, 3000.0));
    EXPECT_GT(around(0.2, 0.0, 0xffff0000), 30);

    fly(90.0, 1300.0);
    draw();
    EXPECT_EQ(around(0.2, 0.0, 0xffff0000), 0);
    EXPECT_GT(around(0.2, 0.0, 0xff00ff00), 30);

    irr::SEvent press{};
    press.EventType = irr::EET_MOUSE_INPUT_EVENT;
    press.MouseInput.X = 20;
    press.MouseInput.Y = height - 20;
    press.MouseInput.Event = irr::EMIE_LMOUSE_PRESSED_DOWN;
    map->processEvent(press);
    press.MouseInput.Event = irr::EMIE_LMOUSE_LEFT_UP;
    map->processEvent(press);
    draw();
    ASSERT_EQ(map->getTopTrack(), 90.0);
    EXPECT_NEAR(pixelOf(0.2, 0.0).X, width / 2, 1); // straight ahead is up
    EXPECT_GT(around(0.2, 0.0, 0xff00ff00), 30);
}

TEST_F(ElementsOnMap, airspacesThatAreTooHighOrUnwantedAreLeftOut) {
    double west = -0.3;
    for (const char* name : {"RA", "DA", "RA"}) { // a class that the static bytes don't tell
        auto airspace = std::make_unique<AirspaceElement>();
        airspace->airspaceClass = name;
        airspace->bottomFeet = west > 0.0 ? 45000 : 1000;
        airspace->vertices = {{west, -0.1}, {west, 0.1}, {west + 0.15, 0.1}, {west + 0.15, -0.1}};
        add(std::move(airspace));
        west += 0.2;
    }
    ini.set("", "blacklist", "DA");
    panels().loadPanelSettingsFromIni(&ini, nullptr, false, false);
    openMap("airspacesBelow = 40000\ndescriptions = 0\n");
    EXPECT_GT(around(-0.3, 0.05, 0xffff3c3c), 60);
    EXPECT_EQ(around(-0.1, 0.05, 0xffffffff), 0);
    EXPECT_EQ(around(0.1, 0.05, 0xffff3c3c), 0);
    map.reset();
    openMap("airspacesBelow = 50000\ndescriptions = 0\nirrelevant = 1\n");
    EXPECT_GT(around(-0.1, 0.05, 0xffffffff), 40);
    EXPECT_GT(around(0.1, 0.05, 0xffff3c3c), 60);
}

TEST_F(ElementsOnMap, wildElementsAtTheEdgesOfTheEarth) {
    const double inf = std::numeric_limits<double>::infinity();
    for (const double latitude : {0.0, 89.7}) {
        for (const double longitude : {179.9, -179.9})
            add(at<VORElement>(longitude, latitude));
        auto vor = at<VORElement>(180.0, latitude);
        vor->magneticVariationDegrees = static_cast<float>(inf);
        add(std::move(vor));
        auto airport = at<AirportElement>(180.0, latitude);
        airport->runways.resize(3);
        airport->runways[0].lengthFeet = 4294967295u;
        airport->runways[0].directionDegrees = 4000000000u;
        airport->runways[1].ends[0].threshold = {0.0, -90.0};
        airport->runways[1].ends[0].isThresholdKnown = true;
        add(std::move(airport));
        auto mast = at<ObstructionElement>(-179.95, latitude);
        mast->altitudeMslFeet = -2147483647;
        add(std::move(mast));
        add(ground(13, GroundGeometryElement::Polygon,
                   {{179.9, latitude - 0.2}, {-179.9, latitude}, {179.9, latitude}, {-179.9, latitude - 0.2}}));
        add(ground(9, 77, {{170.0, latitude}, {-170.0, latitude}}));
        auto airspace = std::make_unique<AirspaceElement>();
        airspace->airspaceClass = "no such class";
        airspace->vertices = {{179.8, latitude - 0.3}, {-179.8, latitude - 0.3}, {179.0, 100.0}, {-540.0, latitude}};
        add(std::move(airspace));
    }
    fly(45.0, 1000.0, {180.0, 0.0});
    openMap("lowIFR = 1\nairways = 1\n");
    gl.savePicture("antimeridian.png");
    EXPECT_GT(around(179.9, 0.0, 0xff0000ff), 60);
    EXPECT_GT(around(-179.9, 0.0, 0xff0000ff), 60);
    EXPECT_GT(pixelOf(-179.9, 0.0).X, pixelOf(179.9, 0.0).X);
    EXPECT_GT(around(180.0, -0.03, 0xff3f7fc4, 8), 20); // the narrow part of a bow tie

    fly(45.0, 1000.0, {180.0, 89.7});
    zoom(3);
    zoom(-9);
    fly(45.0, inf, {inf, -inf});
    zoom(1);
    EXPECT_EQ(gl.pixel(2, 2).getAlpha(), 255u);
}

/// While the map moves on and new sets of tiles bring new labels, those that are there keep their side of the symbol.
TEST_F(ElementsOnMap, labelsAreCalmAndClearOfEachOther) {
    for (int i = 0; i < 48; ++i) { // four close together here and there
        const int heap = i / 4;
        auto vor =
            at<VORElement>(-0.4 + 0.2 * (heap % 6) + 0.02 * (i % 2), -0.1 + 0.14 * (heap / 6) + 0.02 * (i % 4 / 2));
        vor->ident = "V" + std::to_string(100 + i);
        add(std::move(vor));
    }
    openMap("mapElementSize = 0.03\n");
    const auto& labels = map->getParts().labels;
    const auto settle = [&] {
        for (int i = 0; i < 20 && (labels.isSolving() || map->getParts().tiles.isFilling()); ++i)
            draw();
        draw(); // the glide ends
    };
    const auto offsets = [&] {
        std::map<long, irr::core::vector2d<int>> places;
        for (const RGDContent& label : labels.getShown())
            places[label.id] =
                labels.calcRect(label).getCenter() - pixelOf(label.anchor.longitude, label.anchor.latitude);
        return places;
    };
    settle();
    const auto before = offsets();
    ASSERT_GT(before.size(), 20u);
    int covered = 0;
    for (const RGDContent& one : labels.getShown())
        for (const RGDContent& other : labels.getShown()) {
            rect<int> common = labels.calcRect(one);
            common.clipAgainst(labels.calcRect(other));
            covered += &one < &other ? std::max(0, common.getArea()) : 0;
        }
    EXPECT_LT(covered, 200) << "square pixels of labels on labels";

    size_t moved = 0, known = 0;
    for (int step = 1; step <= 6; ++step) {
        fly(90.0, 1000.0, {0.05 * step, 0.0}); // a new set every now and then
        draw();
    }
    map->OnProcedureChanged();
    settle();
    for (const auto& [id, offset] : offsets()) {
        const auto found = before.find(id);
        known += found != before.end();
        moved += found != before.end() && found->second.getDistanceFrom(offset) > 6;
    }
    EXPECT_GT(known, before.size() / 2);
    EXPECT_LE(moved, known / 10);
}

TEST_F(ElementsOnMap, elementsWithoutPointsDrawNothing) {
    openMap("lowIFR = 1\nairways = 1\n");
    const auto lineless = ground(9, GroundGeometryElement::Line, {}), point = ground(13, 0, {{0.0, 0.0}});
    const AirspaceElement airspace;
    const AirwayElement airway;
    const AirportElement airport;
    for (const IChartElement* element :
         std::initializer_list<const IChartElement*>{lineless.get(), point.get(), &airspace, &airway, &airport}) {
        IChartElementRenderer& renderer = *context->getChartElementRenderer(element->getType());
        for (const bool selected : {false, true})
            frame([&] { renderer.render2D(element, map.get(), 4711, false, selected); });
        renderer.isMouseOver2D(map.get(), element, 4711, {width / 2, height / 2});
        renderer.will2DMapChange(map.get(), element, 0.0, 500.0);
        renderer.getPriority(element);
        renderer.getSelectPriority(element);
    }
    EXPECT_EQ(gl.pixel(2, 2).getAlpha(), 255u);
}

/// The chart is emptied while tiles fill and while the cross holds an element of it.
TEST_F(ElementsOnMap, aChartMayVanishAtAnyTime) {
    for (int i = 0; i < 40; ++i)
        add(at<VORElement>(0.02 * (i % 8) - 0.08, 0.02 * (i / 8) - 0.05));
    add(at<MarkElement>(0.0, 0.0));
    openMap("marks = 1\n");
    map->getParts().view.leaveFollowing();
    draw();
    ASSERT_NE(map->getParts().selection.getElement(), nullptr);
    map->OnProcedureChanged(); // a set of tiles begins
    const auto oneFrame = [&] {
        gl.begin();
        map->render(rect<int>(0, 0, width, height));
        gl.end();
    };
    oneFrame();
    for (int left = 41; left > 0; --left) { // the last one takes the number of what goes
        ASSERT_TRUE(panels().getChart()->deleteCustomChartElement(-1));
        if (left % 5 == 0)
            map->OnChartChanged();
        oneFrame();
    }
    panels().getChart()->deleteCache();
    oneFrame(); // nobody has told the map
    map->OnChartChanged();
    draw();
    EXPECT_EQ(map->getParts().selection.getElement(), nullptr);
    EXPECT_EQ(around(0.0, 0.05, 0xff0000ff, 60), 0);
    EXPECT_TRUE(map->getParts().labels.getShown().empty());
}

TEST_F(ElementsOnMap, thePositionMayJumpAndStall) {
    add(at<VORElement>(1.0, 0.5));
    openMap("descriptions = 0\n");
    std::mt19937 random(3);
    std::uniform_real_distribution<double> longitude(-180.0, 180.0), latitude(-90.0, 90.0), heading(-720.0, 720.0);
    map->getParts().view.toggleOrientation();
    for (int i = 0; i < 150; ++i) {
        fly(heading(random), 1000.0 * (i % 9), {longitude(random), latitude(random)});
        gl.begin();
        map->render(rect<int>(0, 0, width, height));
        gl.end();
    }
    fly(0.0, 1000.0, {1.0, 0.4});
    draw();
    EXPECT_GT(around(1.0, 0.5, 0xff0000ff), 60) << "back where charts are";
    const rect<int> plate(width / 2 - 60, height / 5, width / 2 + 60, height / 5 + 30);
    EXPECT_EQ(count(plate, 0xffc00000, 40), 0);
    sensor->level = ISensor::WRONG; // stalled
    draw();
    EXPECT_GT(count(plate, 0xffc00000, 40), 200) << "NO POSITION";
}

TEST_F(ElementsOnMap, trafficGoesWithItsSensor) {
    const double inf = std::numeric_limits<double>::infinity();
    openMap("");
    auto traffic = std::make_unique<Traffic_Data>();
    const auto put = [&](uint32_t id, double lon, double lat, float track) {
        auto target = std::make_unique<TrafficElement>();
        target->longitude = lon;
        target->latitude = lat;
        target->track = track;
        target->altitude = 2147483647 - static_cast<int>(id % 7);
        target->climbRate = -2147483647 - 1;
        target->name = "TEST\n\x80 and much more";
        traffic->elements[id] = std::move(target);
    };
    put(1, 0.1, 0.1, 90.0f);
    put(2, inf, -inf, static_cast<float>(inf));
    put(3, 1e300, 91.0, -1e30f);
    put(4, std::nan(""), 0.0, std::nanf(""));
    for (uint32_t i = 10; i < 1000; ++i)
        put(i, 0.0, -0.15, 0.0f);
    traffic->elements[5] = nullptr;
    sensor->records[ISensorData::Traffic] = std::move(traffic);
    draw();
    EXPECT_GT(around(0.1, 0.1, 0xff87a3ff), 30);
    EXPECT_GT(around(0.0, -0.15, 0xff87a3ff), 30);
    EXPECT_EQ(around(-0.1, 0.1, 0xff87a3ff), 0);
    sensor->level = ISensor::WRONG;
    draw();
    EXPECT_EQ(around(0.1, 0.1, 0xff87a3ff), 0) << "none outlives its sensor";
}

TEST_F(ElementsOnMap, aHugePolygonIsFilledWhileFramesGoOn) {
    std::vector<ChartPosition> coast;
    for (int i = 0; i < 100000; ++i) {
        const double angle = i * 2.0 * 3.14159265358979 / 100000.0;
        const double r = 0.2 * (1.0 + 0.05 * std::sin(40.0 * angle) + 0.002 * (i % 7));
        coast.emplace_back(r * std::cos(angle), r * std::sin(angle));
    }
    const auto lake = ground(13, GroundGeometryElement::Polygon, std::move(coast));
    openMap("descriptions = 0\n");
    zoom(8); // all of its detail counts
    IChartElementRenderer& renderer = *context->getChartElementRenderer(IChartElement::GROUNDGEOMETRY);
    const auto drawLake = [&] {
        frame([&] { renderer.render2D(lake.get(), map.get(), 77, false, false); });
        return count(rect<int>(width / 2 - 20, 200, width / 2 + 20, 240), 0xff3f7fc4);
    };
    EXPECT_EQ(drawLake(), 0); // not yet
    int frames = 0;
    while (!renderer.OnFrame2D() && frames < 100000)
        ++frames;
    EXPECT_GT(frames, 3);
    EXPECT_EQ(drawLake(), 40 * 40);
    EXPECT_FALSE(renderer.OnFrame2D());
}

} // namespace
} // namespace skyvane

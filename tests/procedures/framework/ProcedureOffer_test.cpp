#include "procedures/framework/ProcedureOffer.h"

#include "chart/elements/AirportElement.h"
#include "chart/elements/VORElement.h"
#include "procedures/approach/ApproachProcedureFactory.h"
#include "procedures/direct/DirectProcedureFactory.h"
#include "procedures/framework/ProcedureHost.h"
#include "procedures/holding/HoldingProcedureFactory.h"
#include "procedures/intercept/InterceptProcedureFactory.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace skyvane {
namespace {

using testing::ElementsAre;

class Offers : public testing::Test {
protected:
    Offers() {
        factories.push_back(std::make_unique<DirectProcedureFactory>(&host));
        factories.push_back(std::make_unique<HoldingProcedureFactory>(&host));
        factories.push_back(std::make_unique<ApproachProcedureFactory>(&host));
        factories.push_back(std::make_unique<InterceptProcedureFactory>(&host));
    }
    std::vector<std::string> texts(IChartElement* element, int id) {
        offer = offerProcedures(factories, element, id);
        std::vector<std::string> found;
        for (const IndicatedProcedure& line : offer.lines) {
            EXPECT_EQ(line.chartIndex, id);
            found.push_back(line.text);
        }
        return found;
    }

    ProcedureHost host;
    std::vector<std::unique_ptr<IProcedureFactory>> factories;
    ProcedureOffer offer;
};

TEST_F(Offers, everyFactoryInOrder) {
    VORElement vor;
    EXPECT_THAT(texts(&vor, 5), ElementsAre("Direct", "Holding", "Intercept Airway/Radial"));
    AirportElement airport;
    airport.elevationFeet = 100;
    Runway runway;
    runway.directionDegrees = 90;
    runway.ends[1].name = "27";
    airport.runways = {runway};
    EXPECT_THAT(texts(&airport, 6), ElementsAre("Direct", "RWY 09 Approach", "RWY 27 Approach"));
    EXPECT_EQ(offer.error, "");
    airport.elevationFeet = AirportElement::UnknownElevation;
    EXPECT_THAT(texts(&airport, 6), ElementsAre());
    EXPECT_EQ(offer.error, "Error: No elevation available.");
}

TEST_F(Offers, aHoldingWhereTheAircraftIs) {
    EXPECT_THAT(texts(nullptr, 0), ElementsAre("Holding"));
    EXPECT_EQ(offer.lines[0].parameters.at(HoldingProcedureFactory::CurrentPositionParameter), "1");
    auto& factory = static_cast<HoldingProcedureFactory&>(*offer.lines[0].factory);
    factory.prepare(offer.lines[0], nullptr);
    EXPECT_FALSE(factory.isAtElement());
    factory.getPosition() = {8.0, 48.0};
    const CourseList pattern = factory.makePattern(500.0);
    ASSERT_GT(pattern.size(), 20u);
    EXPECT_NEAR(pattern.back().position.latitude, 48.0, 1e-6) << "the bare pattern closes at its fix";
    EXPECT_EQ(factory.Create()->getValues().targetAltitude, ProcedureValues::NoAltitude);
    factory.getGeneralValues().targetAltitude = 3000;
    EXPECT_NEAR(factory.Create()->getValues().targetAltitude, 914.4, 1e-9);
    factory.prepare(offer.lines[0], nullptr);
    EXPECT_FALSE(factory.getGeneralValues().targetAltitude) << "an altitude is for one holding only";
}

TEST(SelectedLine, staysForTheSameDestination) {
    EXPECT_EQ(selectLine(4, 1, true), 1);
    EXPECT_EQ(selectLine(4, 1, false), 3);
    EXPECT_EQ(selectLine(4, 4, true), 3);
    EXPECT_EQ(selectLine(4, -1, true), 3);
    EXPECT_EQ(selectLine(0, 0, true), -1);
}

} // namespace
} // namespace skyvane

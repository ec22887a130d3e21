#include "chart/store/ChartFixture.h"
#include "core/ini/IniFile.h"
#include "procedures/direct/DirectProcedureFactory.h"
#include "procedures/framework/ProcedureHost.h"
#include "procedures/holding/HoldingProcedureFactory.h"
#include "procedures/intercept/InterceptProcedureFactory.h"
#include "procedures/plan/SavedPlans.h"

#include <random>

namespace skyvane {
namespace {

const char* const goldenPlan = R"([Home\ to\ Tower]
cnt = 3
proc\00\1.altitudeTolerance = 15.24
proc\00\1.checkAltitude = 1
proc\00\1.checkCourse = 1
proc\00\1.checkGroundSpeed = 0
proc\00\1.locpos.latitude = 50.1
proc\00\1.locpos.longitude = 8.2
proc\00\1.loctype = 2
proc\00\1.name = Direct
proc\00\1.ownType = 7
proc\00\1.positionTolerance = 15.24
proc\00\1.speedTolerance = 10
proc\00\1.targetAltitude = 900.5
proc\00\1.targetGroundSpeed = 145
proc\00\1.targetTurnRate = 2.5
)";

class SavedPlans : public ChartTest {
protected:
    SavedPlans() {
        host_.rig.load("");
        factories_.push_back(std::make_unique<DirectProcedureFactory>(&host_));
        factories_.push_back(std::make_unique<HoldingProcedureFactory>(&host_));
        factories_.push_back(std::make_unique<InterceptProcedureFactory>(&host_));
    }
    void installAirports(double shiftDegrees) {
        Elements elements;
        if (shiftDegrees != 0.0)
            elements.push_back(mark("Another", 8.2, 50.1));
        elements.push_back(airport("EDDA", 8.1, 50.1));
        elements.push_back(airport("EDDB", 8.2 + shiftDegrees, 50.1));
        elements.push_back(mark("Tower", 8.3, 50.1));
        install("V", "a", elements);
        store_ = open();
        host_.charts = store_.get();
    }
    int idOf(const std::string& name) { return find(*store_, name).front(); }
    void fill(FlightPlan& plan) {
        IndicatedProcedure line{idOf("EDDB"), "Direct", factories_[0].get(), {}};
        factories_[0]->setup(line, nullptr);
        plan.add(factories_[0]->Create());
        plan.getCurrent()->setLocationAltitude(900.5);
        plan.add(std::make_unique<HoldingProcedure>(
            store_.get(), idOf("TOWER"), HoldingProcedure::Pattern{123.25, 4.0, false}, factories_[1].get()));
        plan.add(std::make_unique<InterceptProcedure>(
            store_.get(), idOf("TOWER"), InterceptProcedure::Line{10.0, 30.0, false}, factories_[2].get()));
    }

    ProcedureHost host_;
    ProcedureFactories factories_;
    std::unique_ptr<ChartStore> store_;
};

TEST_F(SavedPlans, standInTheDocumentAsItsPageSaysAndComeBack) {
    installAirports(0.0);
    FlightPlan plan;
    fill(plan);
    IniFile document;
    document.set("Home to Tower", "proc[7].name", "of a longer plan before");
    writePlan(plan, document, "Home to Tower", store_.get());
    const std::string text = document.toString();
    EXPECT_EQ(text.substr(0, text.find("proc\\01\\1.")), goldenPlan);
    EXPECT_NE(text.find("1.course = 123.25\nproc\\01\\1.dmedistance = 4\n"), std::string::npos);
    EXPECT_NE(text.find("1.rightturns = 0\n"), std::string::npos);
    EXPECT_NE(text.find("1.targetAltitude = auto\n"), std::string::npos);
    EXPECT_NE(text.find("2\\1.interceptOffset = 30\n"), std::string::npos);
    EXPECT_NE(text.find("2\\1.name = Intercept\\ Airway/Radial\n"), std::string::npos);
    EXPECT_EQ(text.find("proc\\07"), std::string::npos);

    IniFile read;
    read.setFromString(text.c_str());
    PlanReading reading = readPlan(read, "Home to Tower", factories_, store_.get());
    ASSERT_EQ(reading.procedures.size(), 3u);
    EXPECT_TRUE(reading.losses.empty());
    EXPECT_EQ(read.toString(), text); // reading adds nothing
    FlightPlan again;
    again.replaceAll(std::move(reading.procedures));
    EXPECT_EQ(again.getCurrentIndex(), 0);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(again.get(i)->getName(), plan.get(i)->getName());
        EXPECT_EQ(again.get(i)->getLocationChartIndex(), plan.get(i)->getLocationChartIndex());
    }
    IniFile written;
    writePlan(again, written, "Home to Tower", store_.get());
    EXPECT_EQ(written.toString(), text);
}

TEST_F(SavedPlans, findTheirElementsAgainInOtherCharts) {
    installAirports(0.0);
    FlightPlan plan;
    fill(plan);
    const int before = idOf("EDDB");
    IniFile document;
    writePlan(plan, document, "P", store_.get());
    installAirports(0.03); // moved by 2.1 km, another id, and a mark in its place
    ASSERT_NE(idOf("EDDB"), before);
    PlanReading reading = readPlan(document, "P", factories_, store_.get());
    EXPECT_EQ(reading.procedures[0]->getLocationChartIndex(), idOf("EDDB"));
    EXPECT_EQ(reading.procedures[0]->getName(), "Direct: EDDB -  - Airport");
    plan.OnChartChanged(store_.get());
    EXPECT_EQ(plan.get(0)->getLocationChartIndex(), idOf("EDDB"));
    installAirports(0.06); // by 4.3 km: nobody knows whether it is the same
    reading = readPlan(document, "P", factories_, store_.get());
    EXPECT_EQ(reading.procedures[0]->getLocationType(), ProcedureLocation::PlainPosition);
    EXPECT_EQ(reading.procedures[0]->getName(), "Direct: User Position");
    EXPECT_NEAR(reading.procedures[0]->getLocationPosition().longitude, 8.2, 1e-12);
    EXPECT_EQ(readPlan(document, "P", factories_, nullptr).procedures.size(), 3u);
}

TEST_F(SavedPlans, flyWhatCanBeFlownOfADamagedDocument) {
    IniFile document;
    document.setFromString("[P]\ncnt=6\n"
                           "proc[0].name=Barrel\\ Roll\nproc[0].locpos.latitude=1\nproc[0].locpos.longitude=1\n"
                           "proc[1].name=Direct\nproc[1].locpos.latitude=91\nproc[1].locpos.longitude=1\n"
                           "proc[2].name=Direct\nproc[2].locpos.latitude=50\nproc[2].locpos.longitude=8\n"
                           "proc[2].targetTurnRate=-1e300\nproc[2].targetGroundSpeed=nan\nproc[2].targetAltitude=1e40\n"
                           "proc[2].positionTolerance=-5\nproc[2].loctype=99\nproc[2].ownType=4711\n"
                           "proc[3].name=Holding\nproc[3].locpos.latitude=50\nproc[3].locpos.longitude=8\n"
                           "proc[3].dmedistance=1e12\nproc[3].course=inf\n"
                           "proc[4].name=Intercept\\ Airway/Radial\nproc[4].locpos.latitude=50\n"
                           "proc[4].locpos.longitude=8\nproc[4].interceptOffset=0\n");
    PlanReading reading = readPlan(document, "P", factories_, nullptr);
    ASSERT_EQ(reading.procedures.size(), 3u);
    EXPECT_EQ(reading.losses, (std::vector<std::string>{"Barrel Roll", "Direct", ""}));
    const ProcedureValues& values = reading.procedures[0]->getValues();
    EXPECT_EQ(values.targetTurnRate, ProcedureValues().targetTurnRate);
    EXPECT_EQ(values.targetGroundSpeed, ProcedureValues().targetGroundSpeed);
    EXPECT_FALSE(values.hasTargetAltitude());
    EXPECT_EQ(values.positionTolerance, ProcedureValues().positionTolerance);
    EXPECT_EQ(static_cast<HoldingProcedure&>(*reading.procedures[1]).getPattern().dmedistance, 2.0);
    EXPECT_EQ(static_cast<InterceptProcedure&>(*reading.procedures[2]).getLine().interceptOffset, 45.0);
    FlightPlan plan;
    plan.replaceAll(std::move(reading.procedures));
    plan.calculateCourseLists({8.5, 50.2}, 500.0, 540.0);
    for (const auto& procedure : plan.getProcedures())
        EXPECT_FALSE(procedure->getCourseList().empty());
    document.set("P", "cnt", "4000000000");
    EXPECT_EQ(readPlan(document, "P", factories_, nullptr).losses.size(), MostProcedures - 3);
    document.set("P", "cnt", "-1");
    EXPECT_TRUE(readPlan(document, "P", factories_, nullptr).procedures.empty());
    EXPECT_TRUE(readPlan(document, "none", factories_, nullptr).procedures.empty());
    EXPECT_FALSE(document.isSectionAvailable("none"));
}

} // namespace
} // namespace skyvane

#include "procedures/plan/PlanFigures.h"

#include "chart/geodesy/EarthConstants.h"
#include "procedures/direct/DirectProcedure.h"
#include "procedures/direct/DirectProcedureFactory.h"
#include "procedures/framework/ProcedureHost.h"
#include "procedures/holding/HoldingProcedureFactory.h"
#include "procedures/intercept/InterceptProcedureFactory.h"
#include "procedures/plan/ProcedureForm.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace skyvane {
namespace {

class PlanForms : public testing::Test {
protected:
    PlanForms() { host.rig.load(""); }
    /// A form of a procedure with some other values.
    template <class Procedure>
    std::unique_ptr<Procedure> changed(Procedure& procedure, const std::map<std::string, std::string>& values) {
        ProcedureForm form(procedure, nullptr);
        for (const auto& [key, value] : values)
            form.values.set("", key, value);
        EXPECT_EQ(form.findTrouble(), "");
        return std::unique_ptr<Procedure>(static_cast<Procedure*>(form.create(nullptr).release()));
    }

    ProcedureHost host;
    DirectProcedureFactory direct{&host};
    HoldingProcedureFactory holding{&host};
    InterceptProcedureFactory intercept{&host};
};

TEST(PlanFigures, areThoseOfThePathsAndOfTheTypedSpeed) {
    FlightPlan plan;
    EXPECT_FALSE(measurePlan(plan.getProcedures(), 0).totalMiles);
    for (const double longitude : {0.5, 1.0})
        plan.add(std::make_unique<DirectProcedure>(ChartPosition(longitude, 0.0), nullptr));
    EXPECT_FALSE(measurePlan(plan.getProcedures(), 0).totalMiles);
    EXPECT_EQ(planLine(1, *plan.get(1), false), "2   Direct: User Position");
    plan.setCurrent(1);
    plan.calculateCourseLists({0.5, 0.0}, 1000.0, 90.0);
    EXPECT_FALSE(measurePlan(plan.getProcedures(), 1).totalMiles) << "the first one has no path";
    EXPECT_NEAR(*measurePlan(plan.getProcedures(), 1).currentMiles, 30.0, 0.1);
    plan.setCurrent(0);
    plan.calculateCourseLists({0.0, 0.0}, 1000.0, 90.0);
    const auto miles = measurePlan(plan.getProcedures(), 0).totalMiles;
    EXPECT_NEAR(*miles, 60.0, 0.1);
    EXPECT_EQ(totalDistanceText(60.04, false), "Total distance [NM]: 60.0");
    EXPECT_EQ(totalDistanceText(50.0, true), "Total distance [km]: 92.6");
    EXPECT_EQ(totalDistanceText(std::nullopt, true), "Total distance: n/A");
    EXPECT_EQ(flyingTimeText(50.0, readTypedSpeed("120"), false), "kts: 00:25:00");
    EXPECT_EQ(flyingTimeText(50.0, readTypedSpeed("92.6"), true), "km/h: 01:00:00");
    for (const char* speed : {"", "0", "-5", "fast", "1e300", "nan"})
        EXPECT_EQ(flyingTimeText(50.0, readTypedSpeed(speed), false), "kts: n/A") << speed;
    EXPECT_EQ(flyingTimeText(std::nullopt, 100.0, true), "km/h: n/A");
    EXPECT_EQ(flyingTimeText(5000.0, 0.001, false), "kts: n/A") << "too long to be told";
}

TEST_F(PlanForms, changeWhatThePilotEntersAndNothingElse) {
    DirectProcedure procedure(ChartPosition(8.123456789, 50.2), &direct);
    ProcedureValues values;
    values.targetTurnRate = 2.4567;
    values.checkCourse = true;
    procedure.setValues(values);
    const auto same = changed(procedure, {});
    EXPECT_EQ(same->getValues().targetTurnRate, 2.4567) << "shown as 2.5";
    EXPECT_EQ(same->getValues().positionTolerance, 15.24);
    EXPECT_FALSE(same->getValues().hasTargetAltitude());
    EXPECT_EQ(same->getLocationPosition().longitude, 8.123456789);
    const auto other =
        changed(procedure, {{"targetAltitude", "3500"}, {"positionTolerance", "100"}, {"checkCourse", "0"}});
    EXPECT_NEAR(other->getLocationAltitude(), 3500.0 * MetresPerFoot, 1e-6);
    EXPECT_NEAR(other->getValues().positionTolerance, 30.48, 1e-9);
    EXPECT_FALSE(other->isCourseChecked());
    EXPECT_FALSE(changed(*other, {{"targetAltitude", ""}})->getValues().hasTargetAltitude());
    ProcedureForm form(procedure, nullptr);
    for (const char* wrong : {"", "0", "91", "x", "2,5"}) {
        form.values.set("", "targetTurnRate", wrong);
        EXPECT_EQ(form.findTrouble(), "Target TurnRate [°/s]: \nplease enter a number from 0.1 to 90.") << wrong;
        EXPECT_EQ(form.create(nullptr), nullptr);
    }
}

TEST_F(PlanForms, haveTheRowsOfTheirKind) {
    HoldingProcedure pattern(ChartPosition(8.0, 50.0), {350.0, 2.0, true}, &holding);
    const auto turned = changed(pattern, {{"course", "20"}, {"dmedistance", "3.5"}, {"rightturns", "0"}});
    EXPECT_EQ(turned->getPattern().course, 20.0);
    EXPECT_EQ(turned->getPattern().dmedistance, 3.5);
    EXPECT_FALSE(turned->getPattern().rightturns);
    InterceptProcedure radial(nullptr, 0, {250.0, 45.0, true}, &intercept);
    EXPECT_EQ(ProcedureForm(radial, nullptr).values.get("", "courseToElement"), "70");
    EXPECT_EQ(changed(radial, {{"courseToElement", "200"}})->getLine().courseToElement, 20.0);
    ProcedureForm narrow(radial, nullptr);
    narrow.values.set("", "interceptOffset", "24.9");
    EXPECT_NE(narrow.findTrouble(), "");
    const auto has = [](IProcedure& procedure, const std::string& key) {
        const ProcedureForm form(procedure, nullptr);
        return std::any_of(form.getRows().begin(), form.getRows().end(),
                           [&](const auto& row) { return row.key == key; });
    };
    EXPECT_TRUE(has(pattern, "course"));
    EXPECT_FALSE(has(pattern, "interceptOffset"));
    EXPECT_FALSE(has(radial, "rightturns"));
    EXPECT_TRUE(has(radial, "targetAltitude"));
}

} // namespace
} // namespace skyvane

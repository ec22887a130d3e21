#include "procedures/ProcedureManager.h"

#include "core/Factories.h"
#include "core/time/Time.h"
#include "displays/IPanelFactory.h"
#include "displays/PanelManager.h"
#include "gui/windows/DialogFixture.h"
#include "procedures/direct/DirectProcedure.h"
#include "sensors/SensorManager.h"

namespace skyvane {
namespace {

std::vector<std::string> calls;

/// Notes what it is told of the plan.
class PlanProbe : public IPanel {
public:
    explicit PlanProbe(Context* context) : IPanel(context) {}
    void OnPageChange() override {}
    void render(irr::core::rect<int>) override {}
    bool processEvent(irr::SEvent) override { return true; }
    std::string getName() override { return "Probe"; }
    void OnProcedureChanged() override { calls.push_back("changed"); }
    void OnProcedureNodesDelete() override { calls.push_back("delete"); }
    void OnProcedureMeshExchanged() override { calls.push_back("exchanged"); }
};

class PlanProbeFactory : public IPanelFactory {
public:
    explicit PlanProbeFactory(Context* context) : context_(context) {}
    void loadSetupFromIni(IniFile*, std::string) override {}
    bool setup(IniFile*, std::string) override { return false; }
    std::unique_ptr<IPanel> Create() override { return std::make_unique<PlanProbe>(context_); }
    std::string getName() override { return "Probe"; }

private:
    Context* context_;
};

class ProcedureManagerTest : public DialogFixture {
protected:
    void SetUp() override {
        DialogFixture::SetUp();
        if (!context)
            return;
        registerSensorFactories(*context, *context->getSensorManager());
        registerProcedureFactories(*context, manager());
        IniFile ini;
        ini.set("P0", "FactoryIndex", "0");
        ini.set("", "PanelCount", "1");
        context->getPanelManager()->addPanelFactory(std::make_unique<PlanProbeFactory>(context.get()));
        context->getPanelManager()->loadPanelSettingsFromIni(&ini, nullptr, false, false);
        context->getSensorManager()->loadSensorSettingsFromIni(&ini, false);
        calls.clear();
    }
    ProcedureManager& manager() { return *context->getProcedureManager(); }
    void addDirect(double longitude) {
        manager().addProcedure(std::make_unique<DirectProcedure>(
            ChartPosition(longitude, 50.0), manager().findProcedureFactorybyType(IProcedure::Direct)));
    }
};

TEST_P(ProcedureManagerTest, tellsThePanelsAndHandsThemTheHighway) {
    EXPECT_FALSE(manager().calculateCourseList());
    EXPECT_TRUE(calls.empty());
    addDirect(8.5);
    addDirect(9.0);
    manager().setCurrentProcedure(0);
    EXPECT_EQ(calls, (std::vector<std::string>{"changed", "changed", "changed"}));
    EXPECT_FALSE(manager().calculateCourseList()); // nobody knows where the aircraft is
    EXPECT_TRUE(manager().getCurrentProcedure()->getCourseList().empty());
    context->getSensorManager()->startSimulation({8.0, 50.0}, 90, 1000);
    manager().Update(false);
    EXPECT_FALSE(manager().getCurrentProcedure()->getCourseList().empty()) << "asked for before";
    EXPECT_TRUE(manager().calculateCourseList());
    EXPECT_NEAR(manager().getCurrentProcedure()->getLength(), 19.3, 0.2);
    EXPECT_LT(manager().getCurrentProcedure()->getGuidance().crossTrackError, 0.05);
    for (int i = 0; i < 100 && manager().getActiveMesh()->getMeshBuffer(0)->getVertexCount() == 0; ++i) {
        Delay(20); // the thread has been woken
        manager().Update(false);
    }
    EXPECT_GT(manager().getActiveMesh()->getMeshBuffer(0)->getVertexCount(), 100u);
    EXPECT_EQ(calls.back(), "exchanged");
    EXPECT_NEAR(manager().getActiveMeshPosition().longitude, 8.0, 0.01);
}

TEST_P(ProcedureManagerTest, savesPlansAndKeepsTheOneThatIsFlown) {
    addDirect(8.5);
    addDirect(9.0);
    manager().insertFlightPlan("Trip");
    manager().getSavedFlightPlans().set("Odd", "cnt", "2");
    EXPECT_TRUE(manager().saveFlightPlans());
    EXPECT_TRUE(std::filesystem::exists(context->getPath("data/fpl.ini")));
    EXPECT_FALSE(manager().retrieveFlightPlan("none"));
    EXPECT_FALSE(manager().retrieveFlightPlan("Odd"));
    EXPECT_EQ(manager().getProcedureCount(), 2);
    manager().deleteAllProcedures();
    EXPECT_EQ(manager().getCurrentProcedure()->getName(), "Unspecified");
    EXPECT_TRUE(manager().retrieveFlightPlan("Trip"));
    EXPECT_EQ(manager().getCurrentProcedureIndex(), 0);
    EXPECT_NEAR(manager().getCurrentProcedure()->getLocationPosition().longitude, 8.5, 1e-12);
}

TEST_P(ProcedureManagerTest, startsWithAPlanOnceThePositionIsKnown) {
    addDirect(8.5);
    manager().insertFlightPlan("Trip");
    manager().deleteAllProcedures();
    manager().startWithFlightPlan("none");
    EXPECT_EQ(manager().getProcedureCount(), 0);
    manager().startWithFlightPlan("Trip");
    ASSERT_EQ(manager().getProcedureCount(), 1);
    EXPECT_TRUE(manager().getCurrentProcedure()->getCourseList().empty()) << "nobody knows where it begins";
    context->getSensorManager()->startSimulation(ChartPosition(8.0, 50.0), 90, 1000);
    manager().Update(false);
    const CourseList first = manager().getCurrentProcedure()->getCourseList();
    ASSERT_FALSE(first.empty());
    context->getSensorManager()->startSimulation(ChartPosition(8.1, 50.0), 90, 1000);
    manager().Update(false);
    EXPECT_EQ(manager().getCurrentProcedure()->getCourseList().front().position.longitude,
              first.front().position.longitude)
        << "not again";
}

INSTANTIATE_TEST_SUITE_P(Screens, ProcedureManagerTest, testing::Values(irr::core::dimension2du(800, 480)));

} // namespace
} // namespace skyvane

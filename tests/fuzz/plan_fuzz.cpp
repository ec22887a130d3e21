#include "core/ini/IniFile.h"
#include "procedures/aircraft/profiles/Aircraft.h"
#include "procedures/approach/ApproachProcedureFactory.h"
#include "procedures/direct/DirectProcedureFactory.h"
#include "procedures/framework/IProcedureHost.h"
#include "procedures/holding/HoldingProcedureFactory.h"
#include "procedures/intercept/InterceptProcedureFactory.h"
#include "procedures/plan/SavedPlans.h"

#include <cmath>
#include <cstdlib>

using namespace skyvane;

namespace {

class NoHost : public IProcedureHost {
public:
    IChartElementSource* getCharts() override { return nullptr; }
    SensorManager* getSensorManager() override { return nullptr; }
    Aircraft& getCurrentAircraft() override { return aircraft_; }
    void setMessage(void*, const std::string&, MESSAGECOLOR, int) override {}
    void removeMessage(void*) override {}

private:
    Aircraft aircraft_;
};

} // namespace

// Any text as a document of plans: whatever comes out of it can be flown, with finite figures.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static NoHost host;
    static const ProcedureFactories factories = [] {
        ProcedureFactories all;
        all.push_back(std::make_unique<DirectProcedureFactory>(&host));
        all.push_back(std::make_unique<HoldingProcedureFactory>(&host));
        all.push_back(std::make_unique<ApproachProcedureFactory>(&host));
        all.push_back(std::make_unique<InterceptProcedureFactory>(&host));
        return all;
    }();
    IniFile document;
    document.setFromString(std::string(reinterpret_cast<const char*>(data), size).c_str());
    FlightPlan plan;
    plan.replaceAll(readPlan(document, "P", factories, nullptr).procedures);
    plan.calculateCourseLists({8.0, 50.0}, 500.0, 90.0);
    for (const auto& procedure : plan.getProcedures()) {
        procedure->updatePosRelated({8.1, 50.1}, 600.0, 100.0, 80.0);
        if (!std::isfinite(procedure->getLength()) || !std::isfinite(procedure->getBearing()))
            std::abort();
    }
    IniFile written;
    writePlan(plan, written, "P", nullptr);
    return 0;
}

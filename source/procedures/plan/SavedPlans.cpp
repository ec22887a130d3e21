#include "procedures/plan/SavedPlans.h"

#include "core/ini/IniFile.h"
#include "core/text/Numbers.h"
#include "procedures/framework/ProcedureKeys.h"

#include <algorithm>

namespace skyvane {
namespace {

constexpr const char* CountKey = "cnt";
constexpr size_t LongestName = 60; // of what no factory knows

} // namespace

IProcedureFactory* findFactory(const ProcedureFactories& factories, const std::string& name) {
    const auto found = std::find_if(factories.begin(), factories.end(),
                                    [&name](const auto& factory) { return factory->getName() == name; });
    return found == factories.end() ? nullptr : found->get();
}

void writePlan(const FlightPlan& plan, IniFile& document, const std::string& section, IChartElementSource* charts) {
    document.removeSection(section);
    unsigned index = 0;
    for (const auto& procedure : plan.getProcedures())
        if (procedure->getFactory())
            procedure->insertInIni(charts, &document, section, index++);
    document.set(section, CountKey, toText(static_cast<int>(index)));
}

PlanReading readPlan(IniFile& document, const std::string& section, const ProcedureFactories& factories,
                     IChartElementSource* charts) {
    PlanReading reading;
    if (!document.isAvailable(section, CountKey))
        return reading;
    const unsigned count = std::min(toUnsigned(document.get(section, CountKey)), MostProcedures);
    for (unsigned i = 0; i < count; ++i) {
        const std::string name = ProcedureKeys(document, section, i).text("name");
        IProcedureFactory* factory = findFactory(factories, name);
        std::unique_ptr<IProcedure> procedure =
            factory ? factory->CreateFromIni(charts, &document, section, i) : nullptr;
        if (procedure)
            reading.procedures.push_back(std::move(procedure));
        else
            reading.losses.push_back(name.substr(0, LongestName));
    }
    return reading;
}

} // namespace skyvane
